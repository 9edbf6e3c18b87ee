#pragma once

#include "platform/systeme/Volumes.h"

#include <optional>
#include <string>
#include <vector>

namespace view {

// Where a path could lead once its volume is left out: the paths to try, in order. The volume of a path is its drive letter
// ("E:\Films\…") or share ("\\nas\films\…"), or the place where it is, or would be, mounted. What follows it is tried on
// the volume that holds the path now, then on every other one, in their order; a floppy or a silent volume is never looked
// at, nor anything below it.
[[nodiscard]] std::vector<std::string> placesPossibles(const std::string& chemin,
                                                       const std::vector<systeme::Volume>& volumes);

// The first of these that is a file, under its real name; empty when none is.
[[nodiscard]] std::optional<std::string> chercheFichier(const std::string& chemin,
                                                        const std::vector<systeme::Volume>& volumes);

}  // namespace view
