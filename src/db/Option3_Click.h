#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"

namespace db {

// Where new posters go was chosen, by the user or by the settings: gives the images folder its default when it has none
// (and makes that folder), and enables the folder's controls when posters go there.
class Option3_Click {
  public:
    Option3_Click(EtatStockage& etat, const Chemins& chemins) : m_etat(etat), m_chemins(chemins) {}

    void operator()();

  private:
    EtatStockage& m_etat;
    const Chemins& m_chemins;
};

}  // namespace db
