#pragma once

#include "ensemble/FiltreTitres.h"

#include <string>

namespace ensemble {

// The filter above the title tree, for all that shows the listing: `titres` tells what of it is to be seen.
struct EtatFiltre {
    FiltreTitres titres;
    std::string saisie;   // what is typed, as it is
    std::string libelle;  // what the films that it is limited to are called: "Drame"
    std::string echec;    // why nothing could be filtered, else empty
    int recherches = 0;   // of the listing, when it was last looked at
};

}  // namespace ensemble
