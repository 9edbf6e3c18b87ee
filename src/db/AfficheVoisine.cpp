#include "db/AfficheVoisine.h"

#include "platform/fichiers/Fichiers.h"

#include <filesystem>
#include <system_error>

namespace db {

namespace fs = std::filesystem;

std::optional<std::string> afficheVoisine(const std::string& base, std::string_view nom) {
    nom.remove_prefix(nom.find_last_of("/\\") + 1);  // 0 when there is none: npos + 1
    if (nom.empty() || nom == "." || nom == ".." || nom.find('\0') != std::string_view::npos) return std::nullopt;
    std::error_code erreur;
    const std::string reelle = fs::canonical(base, erreur).string();
    if (erreur) return std::nullopt;
    const std::string dossier = fichiers::dossierDe(reelle);
    for (const std::string& place : {dossier + "Images/", dossier}) {
        const auto trouve = fichiers::trouve(place + std::string(nom));
        if (trouve && fs::is_regular_file(fs::symlink_status(*trouve, erreur))) return trouve;
    }
    return std::nullopt;
}

}  // namespace db
