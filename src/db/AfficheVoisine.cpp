#include "db/AfficheVoisine.h"

#include "platform/fichiers/Fichiers.h"

#include <filesystem>
#include <system_error>

namespace db {

namespace fs = std::filesystem;

std::optional<std::string> afficheDans(const std::string& dossier, std::string_view nom) {
    nom.remove_prefix(nom.find_last_of("/\\") + 1);  // 0 when there is none: npos + 1
    if (nom.empty() || nom == "." || nom == ".." || nom.find('\0') != std::string_view::npos) return std::nullopt;
    const auto trouve = fichiers::trouve(dossier + std::string(nom));
    std::error_code erreur;
    return trouve && fs::is_regular_file(fs::symlink_status(*trouve, erreur)) ? trouve : std::nullopt;
}

std::optional<std::string> afficheVoisine(const std::string& base, std::string_view nom) {
    std::error_code erreur;
    const std::string reelle = fs::canonical(base, erreur).string();
    if (erreur) return std::nullopt;
    const std::string dossier = fichiers::dossierDe(reelle);
    const auto trouvee = afficheDans(dossier + "Images/", nom);
    return trouvee ? trouvee : afficheDans(dossier, nom);
}

}  // namespace db
