#include "platform/dao/LectureSeule.h"

#include "platform/dao/DBEngine.h"
#include "platform/dao/Erreurs.h"

#include <filesystem>
#include <system_error>

#include <sqlite3.h>

namespace dao::interne {

Poignee ouvreEnLecture(const std::string& chemin) {
    std::error_code erreur;
    if (!std::filesystem::is_regular_file(chemin, erreur))
        jette(kErreurFichierIntrouvable, "Fichier introuvable : « " + chemin + " ».");
    exigeJournauxSimples(chemin);
    Poignee base(chemin, SQLITE_OPEN_READONLY);
    for (const int reglage : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_VIEW})
        sqlite3_db_config(base.brute(), reglage, 0, nullptr);  // what a file made elsewhere may hold must not act
    base.execute("PRAGMA temp_store=MEMORY");
    const long long identifiant = base.entier("PRAGMA application_id");
    if (identifiant != 0 && identifiant != DBEngine::kIdentifiantApplication)
        jette(kErreurFormat, "La base appartient à un autre programme.");
    return base;
}

}  // namespace dao::interne
