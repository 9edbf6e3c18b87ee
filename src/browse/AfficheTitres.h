#pragma once

#include "browse/EtatListe.h"
#include "db/Base.h"

namespace browse {

// Fills the tree from the listing recordset, under the headings of a sort, in one pass.
class AfficheTitres {
  public:
    AfficheTitres(EtatListe& liste, db::Base& base) : m_liste(liste), m_base(base) {}

    // Throws dao::ErreurDao when the listing cannot be read.
    void operator()(int tri);
    // A tree without nodes.
    void vide();
    // The share of each heading beside its text, or no longer. Nothing else of the window changes.
    void AffStats_Click();

  private:
    void remplit(int tri);

    EtatListe& m_liste;
    db::Base& m_base;
};

}  // namespace browse
