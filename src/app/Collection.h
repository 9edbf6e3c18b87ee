#pragma once

#include "app/Contexte.h"

namespace app {

// Shows the collection as a whole: the page that was seen last, or that one. The film on the sheet stays the current one.
void cmdCollection_Click(const Contexte& c);
void OngletCollection_Click(const Contexte& c, PageDeCollection page);

// Shows the sheet of a film that a page names, from the listing of all films where the one shown does not have it. One
// that is gone is told in the notice line.
void montreLeFilm(const Contexte& c, db::CleFilm film);
void menuDuFilm(const Contexte& c, db::CleFilm film);  // and asks for its menu: etats.menu

}  // namespace app
