#pragma once

#include "edit/Contexte.h"

namespace ensemble {

// What looks at the collection as a whole works with what the commands that change it work with: it has no control values
// of its own, its pages are drawn from what its functions answer.
using edit::Contexte;

}  // namespace ensemble
