#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/SelectionneTitre.h"
#include "edit/Contexte.h"

namespace edit {

// The common refresh, which forgets the current film, and that film again where the listing still has it.
inline void remontreFilm(const Contexte& c) {
    const db::CleFilm film = c.film;
    browse::AffichageApresModification(c);
    browse::SelectionneTitre(c, film);
}

}  // namespace edit
