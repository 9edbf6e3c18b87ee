#include "view/cmdRemplacerImage_Click.h"

#include "browse/AfficheTemporaire.h"
#include "browse/ChargeAffiche.h"
#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/LotAffiches.h"
#include "db/Requete.h"
#include "db/TitreCite.h"

#include <optional>
#include <string>

namespace view {

namespace {

void avertit(const Contexte& c, const std::string& texte) {
    c.dialogues.MsgBox(texte, dialogues::kExclamation);
}

// Trying the picture takes the place of the one shown, which comes back at once.
bool estUneImage(const Contexte& c, const std::string& octets) {
    const bool lisible = c.images.charge(octets).has_value();
    browse::ChargeAffiche(c);
    return lisible;
}

std::optional<std::string> octetsAdmis(const Contexte& c, const std::string& chemin) {
    std::optional<std::string> octets;
    if (!fichiers::existe(chemin)) {
        avertit(c, "Image inexistante !");
    } else if (c.stockage.dansLaBase() && fichiers::longueur(chemin) > db::kTailleMaxAffiche) {
        avertit(c, "Image trop grande pour tenir en base !");
    } else if (octets = fichiers::lit(chemin, db::kTailleMaxImage);
               !octets || octets->empty() || !estUneImage(c, *octets)) {
        octets.reset();
        avertit(c, "Cette image est illisible ou trop grande (" + chemin + ") !");
    }
    return octets;
}

// A file stands whole on the disk before the row that names it is stored; a base that refuses leaves the files as they
// were. Replaced posters are filed under their director.
void range(const Contexte& c, dao::Recordset& film, const std::string& octets, db::LotAffiches& lot) {
    dao::Transaction ensemble(c.base.base);
    dao::Valeur valeur = db::valeurAfficheDansLaBase(octets);
    if (!c.stockage.dansLaBase()) {
        fichiers::creeDossier(lot.dossier());  // a folder that cannot be made takes no file either
        valeur = db::valeurAfficheFichier(
            lot.pose(db::nomFichierAffiche(c.film.realisateur, c.film.titre), octets, film.texte("Affiche")));
    }
    film.Edit();
    film.assigne("Affiche", valeur);
    film.Update();
    lot.avantValidation();
    ensemble.confirme();
    lot.apresValidation();
    c.film.affiche = c.stockage.dansLaBase() ? "STO" : valeur.texte();
}

// False after its message.
bool enregistre(const Contexte& c, const std::string& octets) {
    dao::Recordset film = db::ouvreRequete(c, db::enonceFilm(c.film), db::NumeroErreur::cmdRemplacerImage);
    const auto refus = c.stockage.dansLaBase() ? std::nullopt : db::refusDossierImages(c);
    if (!c.film.estUnFilm() || film.Eof() || refus) {
        avertit(c, refus.value_or("Film non trouvé !"));
        return false;
    }
    db::LotAffiches lot(c, db::dossierImages(c), db::LotAffiches::Inconnus::Ecrases);
    try {
        range(c, film, octets, lot);
        return true;
    } catch (const db::EchecConversion& echec) {
        lot.apresAnnulation();
        avertit(c, echec.texte);
        return false;
    } catch (...) {
        lot.apresAnnulation();
        throw;
    }
}

}  // namespace

void cmdRemplacerImage_Click(const Contexte& c) {
    const std::string choisi =
        c.dialogues.choisitFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", c.chemins.dossier});
    if (!choisi.empty()) remplaceAffiche(c, choisi);
}

void remplaceAffiche(const Contexte& c, const std::string& image) {
    const auto octets = octetsAdmis(c, image);
    if (!octets || !enregistre(c, *octets)) return;
    const std::string titre = db::titreCite(c.film.titre);
    c.annulations.nomme("remplacement de l'affiche de " + titre, "Affiche de " + titre + " remplacée.");
    browse::ecritAfficheTemporaire(c, *octets);
    browse::ChargeAffiche(c);
}

}  // namespace view
