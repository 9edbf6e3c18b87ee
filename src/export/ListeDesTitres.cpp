#include "export/ListeDesTitres.h"

#include "db/CheminAEcrire.h"
#include "view/LanceFichier.h"

namespace exportation {

std::string requeteListe(std::string_view clauseOrderBy) {
    return std::string(
               "SELECT * "
               "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 and "
               "Films.realisateur=Personnel.realisateur2 ORDER BY ")
        .append(clauseOrderBy)
        .append(" ;");
}

std::string demandeFichierListe(const db::Contexte& c, std::string_view extension) {
    std::string fichier = db::demandeCheminAEcrire(
        c, {.invite = "Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS",
            .titre = kTitreListe,
            .defaut = "",
            .extension = std::string(extension),
            .extensionAjoutee = true});
    return fichier.empty() ? fichier : fichier.append(extension);
}

Avancement::Avancement(const db::Contexte& c, long total, ecran::Etiquette* pourCent)
    : m_c(c), m_travail(c.ecran), m_pourCent(pourCent) {
    ecran::Progression& barre = m_c.travaux.ProgressBar3;
    barre.Max = total;
    barre.Value = 0;
    barre.Visible = true;
}

Avancement::~Avancement() {
    m_c.travaux.ProgressBar3.Visible = false;
}

bool Avancement::avance() {
    ecran::Progression& barre = m_c.travaux.ProgressBar3;
    ++barre.Value;
    if (m_pourCent) m_pourCent->Caption = std::to_string(barre.Value * 100 / barre.Max);
    return m_c.ecran.respire();
}

bool parcourtLesFilms(dao::Recordset& titres, Avancement& avancement,
                      const std::function<void(const FilmDeLaListe&)>& recoit) {
    LecteurDeFilms lecteur(titres);
    for (; !titres.Eof(); titres.MoveNext()) {
        if (const FilmDeLaListe* film = lecteur.lit()) recoit(*film);
        if (!avancement.avance()) return false;
    }
    return true;
}

}  // namespace exportation
