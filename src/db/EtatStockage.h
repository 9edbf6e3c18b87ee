#pragma once

#include "platform/ecran/Controles.h"

#include <array>

namespace db {

// Where new posters go: the controls of the "Images de la base" settings.
struct EtatStockage {
    std::array<ecran::BoutonOption, 2> Option3;  // 0: in the base, 1: in a folder
    ecran::ZoneTexte Text4;                      // the folder of poster files
    ecran::Bouton cmdParcourir;                  // chooses that folder; enabled with it

    EtatStockage() { ecran::choisit(Option3, 0); }
    [[nodiscard]] bool dansLaBase() const { return Option3[0].Value; }
};

}  // namespace db
