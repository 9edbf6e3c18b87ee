#pragma once

#include "platform/ecran/Controles.h"

#include <string>

namespace app {

// The two buttons, and what they would take back or make again: "suppression de « Alien »".
struct EtatAnnulation {
    ecran::Bouton cmdAnnuler, cmdRetablir;
    std::string aAnnuler, aRetablir;

    EtatAnnulation() { cmdAnnuler.Enabled = cmdRetablir.Enabled = false; }
};

}  // namespace app
