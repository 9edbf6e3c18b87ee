#include "db/EnonceFilm.h"

#include "util/Sql.h"

// The statements keep their blanks as they stand, two after an equals sign and none before ORDER included.
namespace db {

std::string enonceFilm(const CleFilm& film) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(film.titre) +
           " and Realisateur =" + util::entreGuillemets(film.realisateur) + " ORDER BY Titre ASC ;";
}

std::string enonceFilmNote(const CleFilm& film) {
    return "SELECT * FROM Films WHERE titre =" + util::entreGuillemets(film.titre) +
           " and Realisateur =  " + util::entreGuillemets(film.realisateur) + "ORDER BY Titre ASC ;";
}

std::string enonceFilmModifie(const CleFilm& film) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(film.titre) +
           " and Realisateur =  " + util::entreGuillemets(film.realisateur) + "ORDER BY Titre ASC ;";
}

std::string enoncePossession(const CleFilm& film) {
    return "SELECT * FROM personnel WHERE titre2 =" + util::entreGuillemets(film.titre) +
           " and Realisateur2 =  " + util::entreGuillemets(film.realisateur) + "ORDER BY Titre2 ASC ;";
}

}  // namespace db
