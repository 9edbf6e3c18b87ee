#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace browse {

// The title tree as a plain list of nodes in creation order, their indexes from 1. Two levels: headings and films; a film
// may stand at the root. It keeps its own texts: no view of it points into a recordset.
class Arbre {
  public:
    void Clear();  // generation() rises
    void reserve(std::size_t films, std::size_t octetsDeTexte);

    int ajouteGroupe(std::string cle, std::string texte);
    // `position` is the film's 1-based row in the listing; `groupe` the index of its heading, 0 for the root.
    int ajouteFilm(int groupe, std::uint32_t position, std::string_view titre);

    // Takes a film's node out: those after it move up by one, as in a node collection. Keys and positions stay, and so
    // does the heading of a last film. generation() rises.
    void retire(int indice);

    [[nodiscard]] int Count() const { return static_cast<int>(m_noeuds.size()); }
    [[nodiscard]] bool estGroupe(int indice) const { return noeud(indice).position == 0; }
    [[nodiscard]] std::string Key(int indice) const;  // "T" + group, "K" + position
    [[nodiscard]] std::string_view Text(int indice) const;
    // What follows a heading's own text, its percentage. versionDesTextes() rises.
    void changeSuiteGroupe(int indice, std::string_view suite);
    [[nodiscard]] std::string_view texteDuGroupe(int indice) const;                            // without what follows
    [[nodiscard]] std::uint32_t position(int indice) const { return noeud(indice).position; }  // 0 for a heading
    [[nodiscard]] int Parent(int indice) const { return noeud(indice).parent; }                // 0: the root
    [[nodiscard]] int rang(int indice) const { return noeud(indice).rang; }    // among its siblings, from 0
    [[nodiscard]] const std::vector<std::int32_t>& enfants(int indice) const;  // of a heading, or of the root (0)

    [[nodiscard]] int noeudDuFilm(std::uint32_t position) const;  // 0: none has that position

    [[nodiscard]] int generation() const { return m_generation; }
    [[nodiscard]] int remplissages() const {
        return m_remplissages;
    }  // rises by Clear alone: positions mean other rows
    [[nodiscard]] int versionDesTextes() const { return m_versionDesTextes; }

  private:
    struct Noeud {
        std::uint32_t position = 0;
        std::int32_t parent = 0;
        std::int32_t rang = 0;
        std::uint32_t texte = 0;  // films: offset into m_titres; headings: index into m_groupes
    };
    struct Groupe {
        std::string cle, texte;
        std::size_t taille;  // of the heading's own text, at the start of `texte`
        std::vector<std::int32_t> enfants;
    };
    [[nodiscard]] std::vector<std::int32_t>& enfantsDe(int indice);
    [[nodiscard]] const Noeud& noeud(int indice) const { return m_noeuds[static_cast<std::size_t>(indice - 1)]; }
    [[nodiscard]] Noeud& noeud(int indice) { return m_noeuds[static_cast<std::size_t>(indice - 1)]; }
    int ajoute(const Noeud& nouveau, std::vector<std::int32_t>& freres);

    std::vector<Noeud> m_noeuds;
    std::vector<Groupe> m_groupes;
    std::vector<std::int32_t> m_racine;
    std::string m_titres;  // one after the other, in the order of their nodes
    int m_generation = 0;
    int m_remplissages = 0;
    int m_versionDesTextes = 0;
};

}  // namespace browse
