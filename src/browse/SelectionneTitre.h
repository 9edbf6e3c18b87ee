#pragma once

#include "browse/TreeView1.h"

#include <cstdint>
#include <string>

namespace browse {

// Selects a film in the tree by its title and director, compared as the base compares them, and shows its sheet.
// Nothing happens where the listing does not have it.
class SelectionneTitre {
  public:
    SelectionneTitre(EtatListe& liste, db::Base& base, TreeView1& arbre)
        : m_liste(liste), m_base(base), m_arbre(arbre) {}

    // By value: showing a sheet changes the current film, whose fields callers may pass.
    void operator()(std::string titre, std::string realisateur);

  private:
    template <typename Egalite>
    [[nodiscard]] std::uint32_t cherche(const std::string& titre, const std::string& realisateur, Egalite egal);

    EtatListe& m_liste;
    db::Base& m_base;
    TreeView1& m_arbre;
};

}  // namespace browse
