#include "browse/MontreFilm.h"

#include "browse/AffichageApresModification.h"
#include "browse/SelectionneTitre.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"

namespace browse {

bool MontreFilm(const Contexte& c, const db::CleFilm& film) {
    if (!filmExiste(c, film)) return false;
    if (montreDansLaListe(c, film)) return true;
    listeTousLesFilms(c);
    return montreDansLaListe(c, film);
}

bool montreDansLaListe(const Contexte& c, const db::CleFilm& film) {
    SelectionneTitre(c, film);
    return filmEstCourant(c, film);
}

bool filmExiste(const Contexte& c, const db::CleFilm& film) {
    return db::ouvreRequete(c, db::enonceFilm(film), db::NumeroErreur::AfficheFiche).RecordCount() > 0;
}

bool filmEstCourant(const Contexte& c, const db::CleFilm& film) {
    return c.film.estUnFilm() && db::memeFilm(c.film, film);
}

}  // namespace browse
