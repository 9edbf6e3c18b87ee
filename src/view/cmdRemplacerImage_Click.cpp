#include "view/cmdRemplacerImage_Click.h"

#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"

namespace view {

void cmdRemplacerImage_Click::operator()() {
    const std::string choisi =
        m_dialogues.choisitFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", m_chemins.dossier});
    if (choisi.empty()) return;
    if (const auto octets = octetsAdmis(choisi)) remplace(*octets);
}

std::optional<std::string> cmdRemplacerImage_Click::octetsAdmis(const std::string& chemin) {
    std::optional<std::string> octets;
    if (!fichiers::existe(chemin)) {
        avertit("Image inexistante !");
    } else if (m_stockage.dansLaBase() && fichiers::longueur(chemin) > db::kTailleMaxAffiche) {
        avertit("Image trop grande pour tenir en base !");
    } else if (octets = fichiers::lit(chemin, db::kTailleMaxImage);
               !octets || octets->empty() || !estUneImage(*octets)) {
        octets.reset();
        avertit("Cette image est illisible ou trop grande (" + chemin + ") !");
    }
    return octets;
}

// Trying the picture takes the place of the one shown, which comes back at once.
bool cmdRemplacerImage_Click::estUneImage(const std::string& octets) {
    const bool lisible = m_images.charge(octets).has_value();
    m_chargeAffiche();
    return lisible;
}

void cmdRemplacerImage_Click::remplace(const std::string& octets) {
    if (!enregistre(octets)) return;
    m_afficheTemporaire.depuisOctets(octets);
    m_chargeAffiche();
}

// False after its message.
bool cmdRemplacerImage_Click::enregistre(const std::string& octets) {
    dao::Recordset film = db::ouvreRequete(m_base.base, db::enonceFilm(m_film.titre, m_film.realisateur),
                                           db::NumeroErreur::cmdRemplacerImage, m_dialogues);
    const auto refus = m_stockage.dansLaBase() ? std::nullopt : db::refusDossierImages(m_stockage, m_chemins);
    if (!m_film.estUnFilm() || film.Eof() || refus) {
        avertit(refus.value_or("Film non trouvé !"));
        return false;
    }
    db::LotAffiches lot(m_base.base, db::dossierImages(m_stockage, m_chemins), db::LotAffiches::Inconnus::Ecrases);
    try {
        range(film, octets, lot);
        return true;
    } catch (const db::EchecConversion& echec) {
        lot.apresAnnulation();
        avertit(echec.texte);
        return false;
    } catch (...) {
        lot.apresAnnulation();
        throw;
    }
}

// A file stands whole on the disk before the row that names it is stored; a base that refuses leaves the files as they
// were. Replaced posters are filed under their director.
void cmdRemplacerImage_Click::range(dao::Recordset& film, const std::string& octets, db::LotAffiches& lot) {
    dao::Transaction ensemble(m_base.base);
    dao::Valeur valeur = db::valeurAfficheDansLaBase(octets);
    if (!m_stockage.dansLaBase()) {
        fichiers::creeDossier(lot.dossier());  // a folder that cannot be made takes no file either
        valeur = db::valeurAfficheFichier(
            lot.pose(db::nomFichierAffiche(m_film.realisateur, m_film.titre), octets, film.texte("Affiche")));
    }
    film.Edit();
    film.assigne("Affiche", valeur);
    film.Update();
    lot.avantValidation();
    ensemble.confirme();
    lot.apresValidation();
    m_film.affiche = m_stockage.dansLaBase() ? "STO" : valeur.texte();
}

}  // namespace view
