#pragma once

#include "browse/EtatListe.h"

namespace browse {

// While it lives, selections in ChoixZone and ChoixTri are the program's own and raise nothing.
class Occupe {
  public:
    explicit Occupe(EtatListe& liste) : m_liste(liste) { m_liste.occupe = true; }
    Occupe(const Occupe&) = delete;
    Occupe& operator=(const Occupe&) = delete;
    ~Occupe() { m_liste.occupe = false; }

  private:
    EtatListe& m_liste;
};

}  // namespace browse
