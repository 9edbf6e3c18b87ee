#include "edit/cmdValiderInfosPossessions_Click.h"

#include "browse/AfficheNbTitres.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "edit/RemontreFilm.h"
#include "edit/TitreCite.h"
#include "util/Texte.h"

namespace edit {

namespace {

void ecritChamps(dao::Recordset& possession, const Contexte& c) {
    const auto& zones = c.fiche.Text10;
    const auto& listes = c.fiche.Combo7;
    possession.assigne("Titre2", c.film.titre);
    possession.assigne("Realisateur2", c.film.realisateur);
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

void enregistre(const Contexte& c) {
    dao::Recordset possession =
        db::ouvreRequete(c, db::enoncePossession(c.film), db::NumeroErreur::cmdValiderInfosPossessions);
    const bool possede = possession.RecordCount() > 0;
    if (c.fiche.Option1[0].Value) {
        if (possede) possession.Delete();
        return;
    }
    if (possede)
        possession.Edit();
    else
        possession.AddNew();
    ecritChamps(possession, c);
    possession.Update();
}

}  // namespace

void cmdValiderInfosPossessions_Click(const Contexte& c) {
    if (c.film.estUnFilm()) {
        enregistre(c);
        const std::string titre = titreCite(c.film.titre);
        c.annulations.nomme("possession de " + titre, "Possession de " + titre + " enregistrée.");
        c.accompagnement.possessionStockee();
        remontreFilm(c);
        browse::AfficheNbTitres(c);
        browse::RaffraichitBoitesDeroulantes(c);
    }
    c.demandes.focus = "TreeView1";
}

}  // namespace edit
