#include "edit/TitreDejaExistant.h"

#include "db/Requete.h"
#include "util/Sql.h"

namespace edit {

std::string requeteTitreDejaExistant(const db::CleFilm& film) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(film.titre) +
           " AND Realisateur =  " + util::entreGuillemets(film.realisateur) + "ORDER BY Titre ASC ;";
}

// A base that cannot be read is told of when the question is asked.
void prepareTitreDejaExistant(const Contexte& c) {
    try {
        c.base.base.prepareLesRecherches("Films");
    } catch (const dao::ErreurDao&) {
    }
}

bool TitreDejaExistant(const Contexte& c, const db::CleFilm& film) {
    return db::ouvreRequete(c, requeteTitreDejaExistant(film), db::NumeroErreur::TitreDejaExistant).RecordCount() >= 1;
}

}  // namespace edit
