#include "browse/AffichePossession.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::size_t kNonPossede = 0;
constexpr std::size_t kRangement = 3, kDivers = 4, kDate = 6;  // in Text10, after the three files

ChampsPossession lis(const dao::Recordset& possession) {
    ChampsPossession champs;
    champs.possede = true;
    champs.Text10[0] = possession.texte("Fichier1");
    champs.Text10[1] = possession.texte("Fichier2");
    champs.Text10[2] = possession.texte("Fichier3");
    champs.Text10[kRangement] = possession.texte("Rangement");
    champs.Text10[kDivers] = possession.texte("Divers");
    champs.Text10[kDate] = possession.texte("Date");
    champs.Combo7 = {possession.texte("Pret"), possession.texte("Reserve"), possession.texte("Support")};
    return champs;
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
    m_film.possession = possession.Eof() ? ChampsPossession() : lis(possession);
    ecritChampsPossession(m_fiche, m_film.possession);
    montrePossession(m_fiche);
    retientLesFichiers();
    m_fiche.cmdFichiersFilm.Visible = m_film.fichiersPresents;
    nommeLesFichiers();
}

void AffichePossession::retientLesFichiers() {
    for (std::size_t i = 0; i < m_film.fichiers.size(); ++i) {
        m_film.fichiers[i] = m_film.possession.Text10[i];
        if (!m_film.fichiers[i].empty()) m_film.fichiersPresents = true;
    }
}

void AffichePossession::nommeLesFichiers() {
    m_fiche.captionFichiers = m_film.titre;
    m_fiche.cheminsFichiers = m_film.fichiers;
    for (std::size_t i = 0; i < m_film.fichiers.size(); ++i) {
        const std::string nom = fichiers::nomDeFichier(m_film.fichiers[i]);
        m_fiche.Command1[i].Enabled = !m_film.fichiers[i].empty();
        m_fiche.Command1[i].Caption = nom.empty() ? "Fichier " + std::to_string(i + 1) : nom;
    }
}

}  // namespace browse
