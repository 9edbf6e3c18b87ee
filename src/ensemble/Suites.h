#pragma once

#include "ensemble/Contexte.h"

namespace ensemble {

// After a change of films or of holdings: the listing and what is counted of the base are made again. The film whose sheet
// is shown, and the panel that is, stay where they still can.
void rafraichit(const Contexte& c, bool possessions);

}  // namespace ensemble
