#pragma once

#include "browse/Contexte.h"

namespace browse {

// Shows the sheet of a film that another command speaks of, wherever the listing now is: in it, else among all films.
// False, and nothing changes, when the catalogue does not have it. Throws db::RequeteEchouee after its message.
bool MontreFilm(const Contexte& c, const db::CleFilm& film);

// The same without leaving the listing: false when it does not have the film.
bool montreDansLaListe(const Contexte& c, const db::CleFilm& film);

[[nodiscard]] bool filmExiste(const Contexte& c, const db::CleFilm& film);
[[nodiscard]] bool filmEstCourant(const Contexte& c, const db::CleFilm& film);

}  // namespace browse
