#include "db/Affiches.h"

#include "util/NomsFichiers.h"
#include "util/Texte.h"

namespace db {

namespace {

constexpr std::size_t kTailleMaxNom = 255;  // bytes, what file systems take

// The name without the last characters that would make it longer than a file's name can be.
std::string limite(std::string nom, std::size_t octets) {
    while (nom.size() > octets)
        nom = util::coupe(nom, util::longueur(nom) - 1);
    return nom;
}

}  // namespace

std::string nomFichierAffiche(std::string_view titre, std::string_view realisateur) {
    static constexpr std::string_view kExtension = ".jpg";
    const std::string nom = util::nettoieNomFichier(std::string(titre) + " - " + std::string(realisateur));
    return limite(nom, kTailleMaxNom - kExtension.size()).append(kExtension);
}

std::string dossierImages(EtatStockage& etat, const Chemins& chemins) {
    if (etat.Text4.Text.empty()) etat.Text4.Text = chemins.dansDossier("Images");
    return util::avecSeparateur(etat.Text4.Text);
}

bool estDansLaBase(std::string_view affiche) {
    return affiche.starts_with("STO");
}

dao::Valeur valeurAfficheDansLaBase(std::string_view octets) {
    return dao::Valeur::octets("STO" + std::string(octets));
}

dao::Valeur valeurAfficheFichier(std::string_view nom) {
    return "JPG" + std::string(nom);
}

}  // namespace db
