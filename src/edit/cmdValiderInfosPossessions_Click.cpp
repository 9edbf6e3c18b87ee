#include "edit/cmdValiderInfosPossessions_Click.h"

#include "browse/AfficheNbTitres.h"
#include "browse/ChampsPossession.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "edit/RemontreFilm.h"
#include "edit/TitreCite.h"
#include "util/Texte.h"

namespace edit {

namespace {

std::string coupee(std::string_view champ, const std::string& valeur) {
    if (champ == "Support") return util::coupe(valeur, kLongueurSupport);
    return champ == "Divers" ? util::coupe(valeur, kLongueurDivers) : valeur;
}

void ecritChamps(dao::Recordset& possession, const Contexte& c) {
    const browse::ChampsPossession saisis = browse::champsPossession(c.fiche);
    possession.assigne("Titre2", c.film.titre);
    possession.assigne("Realisateur2", c.film.realisateur);
    for (const browse::CaseDeChamp& celle : browse::kCasesDesChamps)
        possession.assigne(celle.champ, coupee(celle.champ, saisis.valeur(celle)));
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
