#pragma once

#include "edit/Contexte.h"

#include <optional>
#include <string_view>

namespace edit {

// Asks for the current film's rating and stores it. Nothing happens without a current film. Throws as ModifieNoteFilm
// does.
void cmdModifieNote_Click(const Contexte& c);

// The stars under the poster store without asking. A click on a star, 1 to 10, gives that rating, and on the one of the
// present rating takes it away; the keys give a rating from 0, none, to 10. Anything else is ignored.
void etoilesNote_Click(const Contexte& c, int etoile);
void etoilesNote_Change(const Contexte& c, int note);

// The rating an answer asks for: 0, none, for an empty one; nothing when it is not from 1 to 10. A comma is a point.
[[nodiscard]] std::optional<int> noteDemandee(std::string_view reponse);

}  // namespace edit
