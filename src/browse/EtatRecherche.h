#pragma once

#include "platform/ecran/Controles.h"

#include <array>

namespace browse {

struct EtatRecherche {
    ecran::ZoneTexte Text2;
    std::array<ecran::CaseACocher, 4> ZoneRecherche;  // title, director, year, cast
    std::array<ecran::BoutonOption, 3> TypeFilm;      // all films, the user's, those not owned
    ecran::Bouton cmdRecherche;

    EtatRecherche() {
        ZoneRecherche[0].Value = 1;
        ecran::choisit(TypeFilm, 0);
    }
};

}  // namespace browse
