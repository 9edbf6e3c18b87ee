#pragma once

#include "voisins/Lecteurs.h"

namespace voisins {

// The program whose collection a file or a folder is, by what is in it. Throws Refus, in words for the user.
[[nodiscard]] Programme reconnais(const std::string& chemin);

// Reads it, but for its posters. A text in columns is not read here: its columns are to be chosen. Throws Refus,
// LectureArretee.
[[nodiscard]] Collection litCollection(const std::string& chemin, const Suivi& suivi = {});

}  // namespace voisins
