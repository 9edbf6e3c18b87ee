#include "app/EffaceRestes.h"

#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"

#include <filesystem>
#include <set>
#include <string>
#include <system_error>

namespace app {

void effaceRestes(const db::Chemins& chemins, const db::EtatStockage& stockage) {
    db::EtatStockage lu = stockage;
    std::error_code ignoree;
    const auto base = std::filesystem::weakly_canonical(chemins.base, ignoree);  // beside the file, not beside a link
    for (const std::string& dossier :
         std::set<std::string>{chemins.dossier, chemins.dossierTmp + "/", db::dossierImages(lu, chemins),
                               fichiers::dossierDe(base.string())})
        fichiers::supprimeRestes(dossier);
}

}  // namespace app
