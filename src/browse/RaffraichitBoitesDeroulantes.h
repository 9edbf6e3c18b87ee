#pragma once

#include "browse/Contexte.h"

namespace browse {

// Fills the three lists of the holdings (lent to, support, reserved for) with what the catalogue knows of each. What the
// user is typing in them stays. Throws db::RequeteEchouee after its message.
void RaffraichitBoitesDeroulantes(const Contexte& c);

}  // namespace browse
