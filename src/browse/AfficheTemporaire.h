#pragma once

#include "browse/Contexte.h"

#include <optional>
#include <string>
#include <string_view>

namespace browse {

// The temporary poster file, through which every display of a poster goes: whatever the sheet shows was put there for the
// film shown. Where a poster that ought to be there (FilmCourant::afficheAttendue) could not be put, the notice line says
// so.
void effaceAfficheTemporaire(const Contexte& c);

// `affiche` is the column's value. A poster file that is gone is told to the user, and there is no temporary file.
void prepareAfficheTemporaire(const Contexte& c, std::string_view affiche);
void ecritAfficheTemporaire(const Contexte& c, std::string_view octets);

// The picture's bytes; nothing without one.
[[nodiscard]] std::optional<std::string> litAfficheTemporaire(const Contexte& c);

}  // namespace browse
