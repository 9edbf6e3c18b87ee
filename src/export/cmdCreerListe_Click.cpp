#include "export/cmdCreerListe_Click.h"

#include "db/Requete.h"
#include "export/Avancement.h"
#include "export/LecteurDeFilms.h"
#include "export/ListeDesTitres.h"
#include "export/TexteListe.h"

namespace exportation {

namespace {

constexpr const char* kQuestionRTF =
    "Souhaitez-vous créer un fichier RTF (texte riche) ?\n\nDans le cas contraire, un simple fichier texte sera créé.";
constexpr const char* kQuestionTri =
    "Souhaitez-vous trier les titres par genre ?\n\nDans le cas contraire, un simple tri alphanumérique sera appliqué.";

}  // namespace

void cmdCreerListe_Click::operator()() {
    const auto demande = [this](const char* question) {
        return m_outils.dialogues.MsgBox(question, dialogues::kQuestion);
    };
    const bool enRTF = demande(kQuestionRTF) == dialogues::kOui;
    const int reponseTri = demande(kQuestionTri);
    const bool parGenre = reponseTri == dialogues::kOui;
    const std::string clause = parGenre ? "genre asc, titre asc" : "titre2 asc";
    if (enRTF)
        m_creeFichierRTF(clause, reponseTri);
    else
        creeFichierTexte(clause, parGenre);
}

void cmdCreerListe_Click::creeFichierTexte(const std::string& clause, bool parGenre) {
    dialogues::Dialogues& boites = m_outils.dialogues;
    dao::Recordset titres =
        db::ouvreRequete(m_outils.base.base, requeteListe(clause), db::NumeroErreur::cmdCreerListe, boites);
    if (titres.RecordCount() == 0) {
        boites.MsgBox(kAucunTitre, dialogues::kExclamation);
        return;
    }
    const std::string fichier = demandeFichierListe(boites, m_outils.chemins, ".txt");
    if (fichier.empty()) return;
    const auto liste = texte(titres, parGenre);
    if (!liste || !m_dernierExport.ecrit(fichier, *liste)) return;
    boites.MsgBox("Le fichier texte " + fichier +
                      " a été créé.\nLes séparateurs de champs étant des tabulations, réglez-les avec votre traitement "
                      "de texte.",
                  dialogues::kInformation, kTitreListe);
    m_lanceFichier("\"" + fichier + "\"", false, "open", "", "", "2", false);
}

std::optional<std::string> cmdCreerListe_Click::texte(dao::Recordset& titres, bool parGenre) {
    const ecran::Travail travail(m_outils.ecran);
    Avancement avancement(m_outils.progression, titres.RecordCount());
    TexteListe liste(parGenre);
    LecteurDeFilms lecteur(titres);
    for (; !titres.Eof(); titres.MoveNext()) {
        if (const FilmDeLaListe* film = lecteur.lit()) liste.ajoute(*film);
        avancement.avance();
        if (!m_outils.ecran.respire()) return std::nullopt;
    }
    return liste.texte();
}

}  // namespace exportation
