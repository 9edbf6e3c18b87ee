#pragma once

#include "platform/ecran/Controles.h"

namespace browse {

// The right side of the window shows one frame at a time.
struct EtatPanneaux {
    ecran::Cadre framePresentation;      // nothing chosen: what the program is and what to do first
    ecran::Cadre frameFiche;             // the film sheet
    ecran::Cadre frameRecherche;         // the search panel
    ecran::Cadre frameListeFonctions;    // the function panels (app::EtatFonctions)
    ecran::Cadre frameMultiSuppression;  // deletion by ticking

    EtatPanneaux() { montre(framePresentation); }
    // Shows that frame and hides the others; montreAucun hides them all.
    void montre(ecran::Cadre& cadre) {
        montreAucun();
        cadre.Visible = true;
    }
    void montreAucun() {
        for (ecran::Cadre* c :
             {&framePresentation, &frameFiche, &frameRecherche, &frameListeFonctions, &frameMultiSuppression})
            c->Visible = false;
    }
};

}  // namespace browse
