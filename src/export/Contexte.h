#pragma once

#include "browse/Contexte.h"
#include "export/EtatNom.h"

namespace exportation {

// What the exports work with.
struct Contexte : browse::Contexte {
    EtatNom& nom;
};

}  // namespace exportation
