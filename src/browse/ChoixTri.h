#pragma once

#include "browse/AffichageApresModification.h"

namespace browse {

// The event of the sort list.
class ChoixTri {
  public:
    ChoixTri(EtatListe& liste, AffichageApresModification& affichageApresModification)
        : m_liste(liste), m_affichageApresModification(affichageApresModification) {}

    void Click();  // an entry was selected, by the user or by the program

  private:
    EtatListe& m_liste;
    AffichageApresModification& m_affichageApresModification;
};

}  // namespace browse
