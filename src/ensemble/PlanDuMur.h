#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace ensemble {

// Where the tiles of a wall of posters stand, in pixels from its top left corner: line after line, under their headings.
// Tiles are known by their rank, over all sections.
class PlanDuMur {
  public:
    struct Section {
        int nombre = 0;         // of its tiles
        bool entete = false;    // a heading stands above them
        bool uneLigne = false;  // those that its one line has no room for are not shown
    };
    struct Mesures {
        int largeur = 0;             // of the wall
        int tuile = 1;               // the width that tiles are wished to have; what is left of a line widens them
        int sousLAffiche = 0;        // of a tile, below its poster, which is 3 high by 2 wide
        int espace = 0, entete = 0;  // between two tiles, and the height of a heading
    };
    struct Place {
        int x = 0, y = 0, largeur = 0, hauteur = 0;  // largeur 0: not shown
        friend bool operator==(const Place&, const Place&) = default;
    };
    enum class Pas { Gauche, Droite, Haut, Bas, PageHaut, PageBas, Debut, Fin };

    PlanDuMur() = default;
    PlanDuMur(const std::vector<Section>& sections, const Mesures& mesures);

    [[nodiscard]] int hauteur() const { return m_hauteur; }
    [[nodiscard]] int colonnes() const { return m_colonnes; }
    [[nodiscard]] int largeurDeTuile() const { return m_largeurDeTuile; }
    [[nodiscard]] int hauteurDeLigne() const { return m_hauteurDeTuile + m_mesures.espace; }
    [[nodiscard]] int tuiles() const { return m_tuiles; }

    [[nodiscard]] Place place(int tuile) const;
    [[nodiscard]] Place placeDeLEntete(std::size_t section) const;
    [[nodiscard]] int tuileA(int x, int y) const;  // -1 beside them all

    // What is to be seen between two heights, from top to bottom.
    void parcours(int haut, int bas, const std::function<void(std::size_t section)>& entete,
                  const std::function<void(int tuile)>& tuile) const;

    // The tiles in sight between two heights, then those of the next page in the direction of the scrolling, then of the
    // page behind, nearest first.
    [[nodiscard]] std::vector<int> voulues(int haut, int bas, bool versLeBas) const;
    [[nodiscard]] std::size_t enVue(int haut, int bas) const;

    // Where a key leads from a tile, as far as there is one; the first tile from none (-1), and -1 in an empty wall.
    [[nodiscard]] int deplace(int tuile, Pas pas, int hauteurDePage) const;

  private:
    struct Posee {
        int haut = 0;      // of its heading
        int lignes = 0;    // top of its first line of tiles
        int premiere = 0;  // rank of its first tile
        int montrees = 0;  // that are shown
        bool entete = false;
    };
    [[nodiscard]] std::size_t sectionDe(int tuile) const;
    [[nodiscard]] std::size_t sectionA(int y) const;
    [[nodiscard]] int voisine(int tuile, bool avant) const;
    [[nodiscard]] int ligneVoisine(int tuile, bool avant) const;
    [[nodiscard]] int page(int tuile, bool avant, int hauteur) const;
    [[nodiscard]] int nombreDeLignes(const Posee& section) const {
        return (section.montrees + m_colonnes - 1) / m_colonnes;
    }

    Mesures m_mesures;
    std::vector<Posee> m_sections;
    int m_colonnes = 1, m_largeurDeTuile = 1, m_hauteurDeTuile = 1, m_hauteur = 0, m_tuiles = 0;
};

}  // namespace ensemble
