#pragma once

#include "browse/AffichageApresModification.h"

namespace browse {

// The events of the zone list.
class ChoixZone {
  public:
    ChoixZone(EtatListe& liste, AffichageApresModification& affichageApresModification)
        : m_liste(liste), m_affichageApresModification(affichageApresModification) {}

    void Click();     // an entry was selected, by the user or by the program
    void DropDown();  // the list opens: "Recherche" leaves it; the listing stays until a zone is picked
    void CloseUp();   // the list closed: where nothing was picked, it names what the tree shows

  private:
    EtatListe& m_liste;
    AffichageApresModification& m_affichageApresModification;
};

}  // namespace browse
