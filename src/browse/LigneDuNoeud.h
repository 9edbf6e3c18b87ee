#pragma once

#include "browse/Contexte.h"

#include <optional>

namespace browse {

// The listing's row of a film's node becomes the current one. It may have gone since it was listed.
void vaSurLaLigne(const Contexte& c, int noeud);

// The film of that row; nothing when it has gone.
[[nodiscard]] std::optional<db::CleFilm> filmDuNoeud(const Contexte& c, int noeud);

}  // namespace browse
