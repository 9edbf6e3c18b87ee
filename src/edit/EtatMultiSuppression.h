#pragma once

#include "platform/ecran/Controles.h"

#include <array>

namespace edit {

// The controls of deletion by ticking.
struct EtatMultiSuppression {
    std::array<ecran::BoutonOption, 2> Option4;  // off, on
    ecran::Bouton cmdSupprTitresSelect;
    ecran::Etiquette lblCoches;  // "3 films cochés", while the boxes are shown

    EtatMultiSuppression() {
        ecran::choisit(Option4, 0);
        cmdSupprTitresSelect.Visible = false;
        lblCoches.Visible = false;
    }
};

}  // namespace edit
