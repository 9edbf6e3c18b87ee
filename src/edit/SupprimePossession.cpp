#include "edit/SupprimePossession.h"

#include "db/EnonceFilm.h"

namespace edit {

bool supprimePossession(dao::Database& base, const std::string& titre, const std::string& realisateur) {
    try {
        dao::Recordset possession = base.OpenRecordset(db::enoncePossession(titre, realisateur));
        if (possession.Eof()) return false;
        possession.Delete();
        return true;
    } catch (const dao::ErreurDao&) {
        return false;
    }
}

}  // namespace edit
