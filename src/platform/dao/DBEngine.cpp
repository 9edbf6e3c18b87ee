#include "platform/dao/DBEngine.h"

#include "platform/dao/Connexion.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/Poignee.h"

#include <filesystem>
#include <string>
#include <system_error>

#include <sqlite3.h>

namespace dao::DBEngine {

using interne::jette;
using interne::Poignee;

Database OpenDatabase(const std::string& chemin, bool exclusif) {
    return Database(std::make_unique<interne::Connexion>(interne::ouvreBase(chemin, exclusif), chemin));
}

void CreateDatabase(const std::string& chemin, std::string_view schema) {
    std::error_code erreur;
    if (std::filesystem::exists(chemin, erreur)) jette(kErreurFichierExiste, "La base « " + chemin + " » existe déjà.");
    try {
        Poignee base(chemin, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        base.execute("PRAGMA application_id=" + std::to_string(kIdentifiantApplication));
        base.execute("BEGIN; " + std::string(schema) + "; COMMIT");
    } catch (const ErreurDao&) {
        std::filesystem::remove(chemin, erreur);
        throw;
    }
}

}  // namespace dao::DBEngine
