#include "edit/SupprimePossession.h"

#include "db/EnonceFilm.h"

namespace edit {

bool supprimePossession(dao::Database& base, const std::string& titre, const std::string& realisateur) {
    dao::Recordset possession = base.OpenRecordset(db::enoncePossession(titre, realisateur));
    if (possession.Eof()) return false;
    try {
        possession.Delete();
        return true;
    } catch (const dao::ErreurDao& erreur) {
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
    }
    return false;
}

}  // namespace edit
