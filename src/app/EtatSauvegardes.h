#pragma once

#include "db/Sauvegardes.h"
#include "platform/ecran/Controles.h"

#include <string>
#include <vector>

namespace app {

// The window of the safety copies of the open base.
struct EtatSauvegardes {
    struct Ligne {
        std::string date, films, possessions, taille, avant;
        friend bool operator==(const Ligne&, const Ligne&) = default;
    };

    EtatSauvegardes() { frmSauvegardes.Visible = false; }

    ecran::Cadre frmSauvegardes;
    int presentations = 0;  // rises each time the window is asked for
    ecran::Etiquette lblSauvegardes;
    std::vector<Ligne> lignes;           // the last copy first
    std::vector<db::Sauvegarde> copies;  // those of the lines
    ecran::ZoneTexte txtComparaison;
};

}  // namespace app
