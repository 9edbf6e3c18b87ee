#include "browse/Label12_Click.h"

#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::string_view kPasDImage = "Pas d'image";

}  // namespace

void Label12_Click::operator()() {
    if (!m_film.estUnFilm() || m_fiche.Label12.Caption.find(kPasDImage) == std::string::npos) return;
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
    try {
        return m_stockage.dansLaBase() ? attacheDansLaBase(image) : attacheEnFichier(image);
    } catch (const dao::ErreurDao& erreur) {
        return "Erreur " + std::to_string(erreur.numero) + " : " + erreur.description;
    }
}

Label12_Click::Echec Label12_Click::attacheDansLaBase(const std::string& image) {
    const auto octets = fichiers::lit(image, db::kTailleMaxAffiche);
    if (!octets) return "Le fichier " + image + " n'a pas pu être lu.";
    ecrit(db::valeurAfficheDansLaBase(*octets));
    return std::nullopt;
}

// The row waits for the file: a base that refuses leaves the file that stood there, a file that cannot be written
// leaves the row.
Label12_Click::Echec Label12_Click::attacheEnFichier(const std::string& image) {
    const std::string nom = db::nomFichierAffiche(m_film.titre, m_film.realisateur);
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    dao::Transaction ensemble(m_base.base);
    ecrit(db::valeurAfficheFichier(nom));
    if (!fichiers::creeDossier(dossier) || !fichiers::copie(image, dossier + nom) ||
        !fichiers::synchronise({dossier + nom}))
        return "Le fichier image " + dossier + nom + " n'a pas pu être écrit (Disque plein/Lecture seule ?)";
    ensemble.confirme();
    return std::nullopt;
}

void Label12_Click::ecrit(const dao::Valeur& affiche) {
    dao::Recordset film = m_base.base.OpenRecordset(db::enonceFilm(m_film.titre, m_film.realisateur));
    if (film.Eof()) return;
    film.Edit();
    film.assigne("Affiche", affiche);
    film.Update();
}

}  // namespace browse
