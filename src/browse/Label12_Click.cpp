#include "browse/Label12_Click.h"

#include "db/AfficheVoisine.h"
#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::string_view kSansImage = "Pas d'image";

}  // namespace

void Label12_Click::operator()() {
    if (!m_film.estUnFilm() || m_fiche.Label12.Caption.find(kSansImage) == std::string::npos) return;
    const std::string image = choisit();
    if (image.empty()) return;
    if (const Echec echec = attache(image))
        m_dialogues.MsgBox(*echec, dialogues::kCritique);
    else
        m_afficheFiche();
}

std::string Label12_Click::choisit() {
    const std::string image = m_dialogues.choisitFichier(
        {.titre = "Choix de l'image associée au film", .filtre = "Fichiers JPEG|*.jpg", .dossier = m_chemins.dossier});
    if (image.empty()) return {};
    if (!fichiers::existe(image)) {
        m_dialogues.MsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation);
        return {};
    }
    if (m_stockage.dansLaBase() && fichiers::longueur(image) > db::kTailleMaxAffiche) {
        m_dialogues.MsgBox("Image trop grande pour tenir en base !", dialogues::kExclamation);
        return {};
    }
    return image;
}

Label12_Click::Echec Label12_Click::attache(const std::string& image) {
    const bool dansLaBase = m_stockage.dansLaBase();
    const auto octets = fichiers::lit(image, dansLaBase ? db::kTailleMaxAffiche : db::kTailleMaxImage);
    if (!octets) return "Le fichier " + image + " n'a pas pu être lu.";
    if (!dansLaBase)
        if (auto refus = db::refusDossierImages(m_stockage, m_chemins)) return refus;
    db::LotAffiches lot(m_base.base, db::dossierImages(m_stockage, m_chemins), db::LotAffiches::Inconnus::Ecrases);
    try {
        return enregistre(lot, *octets);
    } catch (const dao::ErreurDao& erreur) {
        lot.apresAnnulation();
        return "Erreur " + std::to_string(erreur.numero) + " : " + erreur.description;
    } catch (const db::EchecConversion& echec) {
        lot.apresAnnulation();
        return echec.texte;
    }
}

// The row waits for the file: a base that refuses leaves the file that stood there, a file that cannot be written leaves
// the row. What the film has got since it was shown stays its poster.
Label12_Click::Echec Label12_Click::enregistre(db::LotAffiches& lot, const std::string& octets) {
    dao::Transaction ensemble(m_base.base);
    dao::Recordset film = m_base.base.OpenRecordset(db::enonceFilm(m_film.titre, m_film.realisateur));
    if (film.Eof()) return std::nullopt;
    const std::string actuelle = film.texte("Affiche");
    const bool enBase = db::estDansLaBase(actuelle) && actuelle.size() > db::kTaillePrefixe;
    if (enBase || db::fichierAffiche(lot.dossier(), actuelle) || db::afficheVoisine(m_base.base.nom(), actuelle))
        return "Ce film a déjà une affiche : elle est gardée.";
    film.Edit();
    film.assigne("Affiche", m_stockage.dansLaBase() ? db::valeurAfficheDansLaBase(octets)
                                                    : db::valeurAfficheFichier(pose(lot, octets, actuelle)));
    film.Update();
    lot.avantValidation();
    ensemble.confirme();
    lot.apresValidation();
    return std::nullopt;
}

std::string Label12_Click::pose(db::LotAffiches& lot, const std::string& octets, const std::string& actuelle) const {
    fichiers::creeDossier(lot.dossier());  // a folder that cannot be made takes no file either
    return lot.pose(db::nomFichierAffiche(m_film.titre, m_film.realisateur), octets, actuelle);
}

}  // namespace browse
