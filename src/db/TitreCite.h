#pragma once

#include "util/Texte.h"

#include <string>

namespace db {

// A title as the notice line names it: « Alien », a very long one shortened.
[[nodiscard]] inline std::string titreCite(const std::string& titre) {
    constexpr std::size_t kLongueurCitee = 60;
    const std::string debut = util::coupe(titre, kLongueurCitee);
    return util::entreChevrons(debut + (debut.size() < titre.size() ? "…" : ""));
}

}  // namespace db
