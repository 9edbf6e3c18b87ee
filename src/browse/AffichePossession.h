#pragma once

#include "browse/Contexte.h"

namespace browse {

// The holdings frame and the refresh button go with ownership as Option1 tells it: what a click on Option1 does beside
// showing the validate button, and what every program write to Option1 must do too.
void montrePossession(EtatFiche& fiche);

// Fills the holdings part of the sheet for the current film, and what the film remembers of its attached files. Throws
// db::RequeteEchouee after its message.
void AffichePossession(const Contexte& c);

}  // namespace browse
