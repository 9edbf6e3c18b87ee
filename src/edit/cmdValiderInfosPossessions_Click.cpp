#include "edit/cmdValiderInfosPossessions_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "util/Texte.h"

namespace edit {

void cmdValiderInfosPossessions_Click::operator()() {
    if (!m_courant.estUnFilm()) return;
    const std::string titre = m_courant.titre, realisateur = m_courant.realisateur;  // the refresh forgets them
    enregistre();
    if (m_suites.stockee) m_suites.stockee();
    m_suites.affichageApresModification();
    m_suites.selectionneTitre(titre, realisateur);
    m_suites.afficheNbTitres();
    m_suites.boites.RaffraichitBoitesDeroulantes();
}

void cmdValiderInfosPossessions_Click::enregistre() {
    dao::Recordset possession =
        db::ouvreRequete(m_base.base, db::enoncePossession(m_courant.titre, m_courant.realisateur),
                         db::NumeroErreur::cmdValiderInfosPossessions, m_dialogues);
    const bool possede = possession.RecordCount() > 0;
    if (m_fiche.Option1[0].Value) {
        if (possede) possession.Delete();
        return;
    }
    if (possede)
        possession.Edit();
    else
        possession.AddNew();
    ecritChamps(possession);
    possession.Update();
}

void cmdValiderInfosPossessions_Click::ecritChamps(dao::Recordset& possession) const {
    const auto& zones = m_fiche.Text10;
    const auto& listes = m_fiche.Combo7;
    possession.assigne("Titre2", m_courant.titre);
    possession.assigne("Realisateur2", m_courant.realisateur);
    possession.assigne("Rangement", zones[3].Text);
    possession.assigne("Fichier1", zones[0].Text);
    possession.assigne("Fichier2", zones[1].Text);
    possession.assigne("Fichier3", zones[2].Text);
    possession.assigne("Pret", listes[0].Text);
    possession.assigne("Reserve", listes[1].Text);
    possession.assigne("Date", zones[6].Text);
    possession.assigne("Support", util::coupe(listes[2].Text, kLongueurSupport));
    possession.assigne("Divers", util::coupe(zones[4].Text, kLongueurDivers));
}

}  // namespace edit
