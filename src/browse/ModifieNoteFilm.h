#pragma once

#include "browse/Contexte.h"

#include <string>

namespace browse {

// Stores the current film's rating, 0 for none, and shows it. Throws db::RequeteEchouee after its message, or
// dao::ErreurDao when the row cannot be written.
void ModifieNoteFilm(const Contexte& c, int note);

// The rating as label and stars show it.
void montreNote(EtatFiche& fiche, double note);

// What the rating label reads: "Note : 8/10" from 1 to 10, else "Pas de notation".
[[nodiscard]] std::string texteDeLaNote(double note);

}  // namespace browse
