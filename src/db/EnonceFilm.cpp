#include "db/EnonceFilm.h"

#include "util/Sql.h"

// The statements keep their blanks as they stand, two after an equals sign and none before ORDER included.
namespace db {

std::string enonceFilm(std::string_view titre, std::string_view realisateur) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(titre) +
           " and Realisateur =" + util::entreGuillemets(realisateur) + " ORDER BY Titre ASC ;";
}

std::string enonceFilmNote(std::string_view titre, std::string_view realisateur) {
    return "SELECT * FROM Films WHERE titre =" + util::entreGuillemets(titre) +
           " and Realisateur =  " + util::entreGuillemets(realisateur) + "ORDER BY Titre ASC ;";
}

std::string enonceFilmModifie(std::string_view titre, std::string_view realisateur) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(titre) +
           " and Realisateur =  " + util::entreGuillemets(realisateur) + "ORDER BY Titre ASC ;";
}

std::string enoncePossession(std::string_view titre, std::string_view realisateur) {
    return "SELECT * FROM personnel WHERE titre2 =" + util::entreGuillemets(titre) +
           " and Realisateur2 =  " + util::entreGuillemets(realisateur) + "ORDER BY Titre2 ASC ;";
}

}  // namespace db
