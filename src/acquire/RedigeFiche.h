#pragma once

#include "acquire/FicheFilm.h"

#include <string>
#include <vector>

namespace acquire {

struct FicheRedigee {
    std::string octets;
    std::vector<std::string> ecarts;  // what analyseFiche reads in it otherwise than it was given: "titre (majuscules)"
};

// The sheet that says that film: nine lines ended by CR LF, in Windows-1252 where this says every letter of it, else in
// UTF-8 with its mark. A line end within a text is a blank there, since a line ends it. `premiereLigne` counts for nothing.
[[nodiscard]] FicheRedigee redigeFiche(const FicheFilm& film);

}  // namespace acquire
