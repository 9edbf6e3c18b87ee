#pragma once

#include "browse/EtatListe.h"

namespace browse {

// While it lives, selections in ChoixZone and ChoixTri are the program's own and raise nothing.
class Occupe {
  public:
    explicit Occupe(EtatListe& liste) : m_liste(liste), m_avant(liste.occupe) { m_liste.occupe = true; }
    Occupe(const Occupe&) = delete;
    Occupe& operator=(const Occupe&) = delete;
    ~Occupe() { m_liste.occupe = m_avant; }

  private:
    EtatListe& m_liste;
    bool m_avant;
};

}  // namespace browse
