#pragma once

#include "view/Contexte.h"

#include <string>

namespace view {

// Replaces the poster of the current film by a picture file of the user's choice, kept as new posters are. The picture is
// read and checked before anything of the old one goes; a refused one leaves base, files and window as they were. Another
// film that shares the old poster's file keeps it. Throws db::RequeteEchouee after its message, or dao::ErreurDao; the old
// poster is shown then.
void cmdRemplacerImage_Click(const Contexte& c);
void remplaceAffiche(const Contexte& c, const std::string& image);  // by a file that was chosen otherwise

}  // namespace view
