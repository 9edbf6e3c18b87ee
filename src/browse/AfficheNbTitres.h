#pragma once

#include "browse/EtatListe.h"
#include "db/Base.h"

namespace browse {

// Shows how many films the catalogue and the holdings have.
class AfficheNbTitres {
  public:
    AfficheNbTitres(EtatListe& liste, const db::Base& base) : m_liste(liste), m_base(base) {}

    void operator()();

  private:
    EtatListe& m_liste;
    const db::Base& m_base;
};

}  // namespace browse
