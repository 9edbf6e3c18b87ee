#pragma once

#include "browse/TreeView1.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace browse {

// Selects a film in the tree by its title and director, compared as the base compares them, and shows its sheet.
// Nothing happens where the listing does not have it.
class SelectionneTitre {
  public:
    SelectionneTitre(EtatListe& liste, db::Base& base, TreeView1& arbre)
        : m_liste(liste), m_base(base), m_arbre(arbre) {}

    // The film's node, 0 where the listing does not have it.
    [[nodiscard]] int noeud(const std::string& titre, const std::string& realisateur);
    // Opens and selects the heading of a value.
    void groupe(std::string_view valeur);
    // By value: showing a sheet changes the current film, whose fields callers may pass.
    void operator()(std::string titre, std::string realisateur);

  private:
    using Convient = std::function<bool(std::string_view)>;
    [[nodiscard]] std::uint32_t cherche(const Convient& titreConvient, const Convient& realisateurConvient);

    EtatListe& m_liste;
    db::Base& m_base;
    TreeView1& m_arbre;
};

}  // namespace browse
