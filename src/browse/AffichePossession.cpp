#include "browse/AffichePossession.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::size_t kNonPossede = 0, kPossede = 1;
constexpr std::size_t kRangement = 3, kDivers = 4, kDate = 6;  // in Text10, after the three files

// A text that need not be one of the list.
void ecrit(ecran::Liste& liste, std::string texte) {
    liste.ListIndex = -1;
    liste.Text = std::move(texte);
}

}  // namespace

void montrePossession(EtatFiche& fiche) {
    const bool possede = !fiche.Option1[kNonPossede].Value;
    fiche.framePossession.Visible = possede;
    fiche.cmdRaffraichirListe.Visible = possede;
}

void AffichePossession::operator()() {
    m_film.fichiersPresents = false;
    m_film.fichiers = {};
    dao::Recordset possession = db::ouvreRequete(m_base.base, db::enoncePossession(m_film.titre, m_film.realisateur),
                                                 db::NumeroErreur::AfficheFiche, m_dialogues);
    m_fiche.cmdValiderInfosPossessions.Visible = false;
    if (possession.Eof())
        videLesChamps();
    else
        remplit(possession);
    montrePossession(m_fiche);
    m_fiche.cmdFichiersFilm.Visible = m_film.fichiersPresents;
    nommeLesFichiers();
}

void AffichePossession::remplit(const dao::Recordset& possession) {
    ecran::choisit(m_fiche.Option1, kPossede);
    m_fiche.Text10[kRangement].Text = possession.texte("Rangement");
    const std::array<std::string, 3> fichiers{possession.texte("Fichier1"), possession.texte("Fichier2"),
                                              possession.texte("Fichier3")};
    for (std::size_t i = 0; i < fichiers.size(); ++i)
        m_fiche.Text10[i].Text = fichiers[i];
    ecrit(m_fiche.Combo7[0], possession.texte("Pret"));
    ecrit(m_fiche.Combo7[1], possession.texte("Reserve"));
    m_fiche.Text10[kDate].Text = possession.texte("Date");
    ecrit(m_fiche.Combo7[2], possession.texte("Support"));
    m_fiche.Text10[kDivers].Text = possession.texte("Divers");
    if (fichiers[0].empty()) return;
    m_film.fichiersPresents = true;
    m_film.fichiers = fichiers;
    m_fiche.captionFichiers = m_film.titre;
}

void AffichePossession::nommeLesFichiers() {
    m_fiche.cheminsFichiers = m_film.fichiers;
    for (std::size_t i = 0; i < m_film.fichiers.size(); ++i) {
        const std::string nom = fichiers::nomDeFichier(m_film.fichiers[i]);
        m_fiche.Command1[i].Enabled = !m_film.fichiers[i].empty();
        m_fiche.Command1[i].Caption = nom.empty() ? "Fichier " + std::to_string(i + 1) : nom;
    }
}

void AffichePossession::videLesChamps() {
    ecran::choisit(m_fiche.Option1, kNonPossede);
    for (ecran::ZoneTexte& zone : m_fiche.Text10)
        zone.Text.clear();
    for (ecran::Liste& liste : m_fiche.Combo7)
        ecrit(liste, "");
}

}  // namespace browse
