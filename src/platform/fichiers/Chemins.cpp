#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <filesystem>

namespace fichiers {

namespace {

std::size_t debutDuNom(std::string_view chemin) {
    const std::size_t separateur = chemin.find_last_of("/\\");
    return separateur == std::string_view::npos ? 0 : separateur + 1;
}

// Where the point of the extension stands, npos without one. A leading point hides a file and starts no extension.
std::size_t pointDeLExtension(std::string_view chemin) {
    const std::size_t point = chemin.rfind('.');
    return point == std::string_view::npos || point <= debutDuNom(chemin) ? std::string_view::npos : point;
}

}  // namespace

bool estDans(const std::string& chemin, const std::string& dossier) {
    namespace fs = std::filesystem;
    std::error_code erreur;
    const auto reel = [&](const std::string& lu) {
        fs::path complet = fs::weakly_canonical(fs::absolute(lu, erreur), erreur);
        return complet.has_filename() ? complet : complet.parent_path();  // without a final separator
    };
    const fs::path dedans = reel(chemin), autour = reel(dossier);
    return !autour.empty() &&
           std::mismatch(autour.begin(), autour.end(), dedans.begin(), dedans.end()).first == autour.end();
}

std::string absolu(const std::string& chemin) {
    std::error_code ignoree;
    const std::string complet = std::filesystem::absolute(chemin, ignoree).string();
    return complet.empty() ? chemin : complet;
}

std::string nomDeFichier(std::string_view chemin) {
    return std::string(chemin.substr(debutDuNom(chemin)));
}

std::string dossierDe(std::string_view chemin) {
    return std::string(chemin.substr(0, debutDuNom(chemin)));
}

std::string extension(std::string_view chemin) {
    const std::size_t point = pointDeLExtension(chemin);
    return point == std::string_view::npos ? "" : std::string(chemin.substr(point + 1));
}

std::string sansExtension(std::string_view chemin) {
    return std::string(chemin.substr(0, pointDeLExtension(chemin)));
}

}  // namespace fichiers
