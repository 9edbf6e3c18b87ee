#include "db/AfficheVoisine.h"

#include "db/Affiches.h"

#include <filesystem>
#include <system_error>

namespace db {

std::optional<fichiers::Place> afficheVoisine(const std::string& base, std::string_view affiche) {
    std::error_code erreur;
    const std::string reelle = std::filesystem::canonical(base, erreur).string();
    if (erreur) return std::nullopt;
    const std::string dossier = fichiers::dossierDe(reelle);
    const auto trouvee = fichierAffiche(dossier + "Images/", affiche);
    return trouvee ? trouvee : fichierAffiche(dossier, affiche);
}

}  // namespace db
