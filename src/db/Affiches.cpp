#include "db/Affiches.h"

#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace db {

namespace {

constexpr std::string_view kExtension = ".jpg";
constexpr std::size_t kTailleMaxNom = 255;  // bytes, what file systems take
constexpr std::size_t kUnCaractere = 64;    // bytes; one that is longer goes whole, or not

// As many first characters of the name as a file's name can hold. Of a long text only the beginning is looked at.
std::string limite(std::string_view nom, std::size_t octets) {
    if (nom.size() <= octets) return std::string(nom);
    std::string debut;
    for (const std::string_view caractere : util::caracteres(nom.substr(0, octets + kUnCaractere))) {
        if (debut.size() + caractere.size() > octets) break;
        debut += caractere;
    }
    return debut;
}

}  // namespace

std::string nomFichierAffiche(std::string_view titre, std::string_view realisateur) {
    std::string nom = util::nettoieNomFichier(std::string(titre) + " - " + std::string(realisateur));
    std::erase(nom, '\0');
    return limite(nom, kTailleMaxNom - kExtension.size()).append(kExtension);
}

std::string nomNumerote(const std::string& nom, int numero) {
    const std::string fin = " (" + std::to_string(numero) + ")" + std::string(kExtension);
    return limite(fichiers::sansExtension(nom), kTailleMaxNom - fin.size()) + fin;
}

std::string sansNumero(const std::string& nom) {
    const std::size_t fin = nom.size() - std::min(nom.size(), kExtension.size() + 1);  // of the ")"
    const std::size_t debut = nom.rfind(" (", fin);
    if (!nom.ends_with(")" + std::string(kExtension)) || debut == std::string::npos || debut + 2 == fin) return nom;
    if (nom.find_first_not_of("0123456789", debut + 2) != fin) return nom;
    return nom.substr(0, debut).append(kExtension);
}

bool estDansLaBase(std::string_view affiche) {
    return affiche.starts_with(kDansLaBase);
}

dao::Valeur valeurAfficheDansLaBase(std::string_view octets) {
    return dao::Valeur::octets(std::string(kDansLaBase).append(octets));
}

dao::Valeur valeurAfficheFichier(std::string_view nom) {
    return std::string(kDansUnFichier).append(nom);
}

std::string nomDansLeDossier(std::string_view affiche) {
    if (affiche.size() <= kTaillePrefixe || estDansLaBase(affiche)) return {};
    affiche.remove_prefix(kTaillePrefixe);
    std::string nom = fichiers::nomDeFichier(affiche);
    return nom.size() <= kTailleMaxNom ? nom : std::string();
}

std::optional<fichiers::Place> fichierAffiche(const std::string& dossier, std::string_view affiche) {
    return fichiers::situeDans(dossier, nomDansLeDossier(affiche));
}

std::optional<fichiers::Place> afficheVoisine(const std::string& base, std::string_view affiche) {
    std::error_code erreur;
    const std::string reelle = std::filesystem::canonical(base, erreur).string();
    if (erreur) return std::nullopt;
    const std::string dossier = fichiers::dossierDe(reelle);
    const auto trouvee = fichierAffiche(dossier + "Images/", affiche);
    return trouvee ? trouvee : fichierAffiche(dossier, affiche);
}

std::optional<std::string> litAffiche(const std::string& dossier, std::string_view affiche, std::int64_t limite) {
    const auto fichier = fichierAffiche(dossier, affiche);
    return fichier ? fichiers::litSansLien(fichier->chemin, limite) : std::nullopt;
}

}  // namespace db
