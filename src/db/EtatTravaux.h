#pragma once

#include "platform/ecran/Controles.h"

namespace db {

// The controls in which work over many films shows how far it is.
struct EtatTravaux {
    ecran::Progression ProgressBar2;  // conversion of the posters
    ecran::Progression ProgressBar3;  // any other, or the work of another program; visible while it lasts
    ecran::Etiquette lblTravail;      // what that work is, where it says so

    EtatTravaux() { ProgressBar3.Visible = false; }
};

}  // namespace db
