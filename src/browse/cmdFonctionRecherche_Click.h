#pragma once

#include "browse/AfficheAccueil.h"

namespace browse {

// Opens the search panel, ready to type.
class cmdFonctionRecherche_Click {
  public:
    cmdFonctionRecherche_Click(EtatPanneaux& panneaux, ecran::Demandes& demandes, AfficheAccueil& afficheAccueil)
        : m_panneaux(panneaux), m_demandes(demandes), m_afficheAccueil(afficheAccueil) {}

    void operator()();

  private:
    EtatPanneaux& m_panneaux;
    ecran::Demandes& m_demandes;
    AfficheAccueil& m_afficheAccueil;
};

}  // namespace browse
