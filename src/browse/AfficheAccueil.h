#pragma once

#include "browse/EtatPanneaux.h"
#include "platform/ecran/Ecran.h"

namespace browse {

// Resets the film-sheet area: the presentation takes the place of whatever the right side showed.
class AfficheAccueil {
  public:
    AfficheAccueil(EtatPanneaux& panneaux, ecran::Ecran& ecran) : m_panneaux(panneaux), m_ecran(ecran) {}

    void operator()();

  private:
    EtatPanneaux& m_panneaux;
    ecran::Ecran& m_ecran;
};

}  // namespace browse
