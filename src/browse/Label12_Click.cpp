#include "browse/Label12_Click.h"

#include "browse/AfficheFiche.h"
#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/LotAffiches.h"
#include "db/TitreCite.h"
#include "platform/fichiers/Fichiers.h"

#include <optional>
#include <string>
#include <string_view>

namespace browse {

namespace {

constexpr std::string_view kSansImage = "Pas d'image";

using Echec = std::optional<std::string>;  // what to tell the user

bool estAdmise(const Contexte& c, const std::string& image) {
    if (!fichiers::existe(image)) {
        c.dialogues.MsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation);
        return false;
    }
    if (c.stockage.dansLaBase() && fichiers::longueur(image) > db::kTailleMaxAffiche) {
        c.dialogues.MsgBox("Image trop grande pour tenir en base !", dialogues::kExclamation);
        return false;
    }
    return true;
}

std::string pose(const db::CleFilm& film, db::LotAffiches& lot, const std::string& octets,
                 const std::string& actuelle) {
    fichiers::creeDossier(lot.dossier());  // a folder that cannot be made takes no file either
    return lot.pose(db::nomFichierAffiche(film.titre, film.realisateur), octets, actuelle);
}

// The row waits for the file: a base that refuses leaves the file that stood there, a file that cannot be written leaves
// the row. What the film has got since it was shown stays its poster.
Echec enregistre(const Contexte& c, db::LotAffiches& lot, const std::string& octets) {
    dao::Database& base = c.base.base;
    dao::Transaction ensemble(base);
    dao::Recordset film = base.OpenRecordset(db::enonceFilm(c.film));
    if (film.Eof()) return std::nullopt;
    const std::string actuelle = film.texte("Affiche");
    const bool enBase = db::estDansLaBase(actuelle) && actuelle.size() > db::kTaillePrefixe;
    if (enBase || db::fichierAffiche(lot.dossier(), actuelle) || db::afficheVoisine(base.nom(), actuelle))
        return "Ce film a déjà une affiche : elle est gardée.";
    film.Edit();
    film.assigne("Affiche", c.stockage.dansLaBase() ? db::valeurAfficheDansLaBase(octets)
                                                    : db::valeurAfficheFichier(pose(c.film, lot, octets, actuelle)));
    film.Update();
    lot.avantValidation();
    ensemble.confirme();
    lot.apresValidation();
    return std::nullopt;
}

Echec attache(const Contexte& c, const std::string& image) {
    const bool dansLaBase = c.stockage.dansLaBase();
    const auto octets = fichiers::lit(image, dansLaBase ? db::kTailleMaxAffiche : db::kTailleMaxImage);
    if (!octets) return "Le fichier " + image + " n'a pas pu être lu.";
    if (!dansLaBase)
        if (auto refus = db::refusDossierImages(c)) return refus;
    db::LotAffiches lot(c, db::dossierImages(c), db::LotAffiches::Inconnus::Ecrases);
    try {
        return enregistre(c, lot, *octets);
    } catch (const dao::ErreurDao& erreur) {
        lot.apresAnnulation();
        return erreur.texte();
    } catch (const db::EchecConversion& echec) {
        lot.apresAnnulation();
        return echec.texte;
    }
}

}  // namespace

void Label12_Click(const Contexte& c) {
    if (!c.film.estUnFilm() || c.fiche.Label12.Caption.find(kSansImage) == std::string::npos) return;
    const std::string image = c.dialogues.choisitFichier(
        {.titre = "Choix de l'image associée au film", .filtre = "Fichiers JPEG|*.jpg", .dossier = c.chemins.dossier});
    if (!image.empty()) attacheAffiche(c, image);
}

void attacheAffiche(const Contexte& c, const std::string& image) {
    if (!estAdmise(c, image)) return;
    if (const Echec echec = attache(c, image)) {
        c.dialogues.MsgBox(*echec, dialogues::kCritique);
    } else {
        const std::string titre = db::titreCite(c.film.titre);
        c.annulations.nomme("affiche de " + titre, "Affiche attachée à " + titre + ".");
        AfficheFiche(c);
    }
}

}  // namespace browse
