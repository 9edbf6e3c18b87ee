#pragma once

#include "ensemble/Contexte.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ensemble {

// What the films of the listing that the tree shows are counted by.
enum class Sujet { Genre, Decennie, Pays, Realisateur, Support, Note, Duree, Ajouts };

struct Barre {
    std::string libelle;
    std::vector<std::uint32_t>
        lignes{};            // its films, by their positions in the listing: FiltreTitres::limite shows them
    bool manquante = false;  // of the films that do not say
    [[nodiscard]] long nombre() const { return static_cast<long>(lignes.size()); }
};

// One subject. A film counts under each genre, country and director that it names, so that bars may add up to more than
// there are films. Genres, countries, directors and supports stand by their number, the others in their own order; the
// films that do not say come last.
struct Diagramme {
    Sujet sujet;
    std::string titre;
    std::vector<Barre> barres{};
    long films = 0;  // of the listing
};

// Counts the listing that the tree shows now, a part at a time; it has to be the same one until the end. The listing's
// current record moves. Each call throws db::RequeteEchouee after its message, dao::ErreurDao.
class Comptage {
  public:
    explicit Comptage(const Contexte& c);
    Comptage(Comptage&&) noexcept;
    Comptage& operator=(Comptage&&) noexcept;
    ~Comptage();

    // Reads on, for about as long as said. True once all is counted.
    bool avance(const Contexte& c, std::chrono::milliseconds duree);
    // The subjects that were counted since the last call, in the order of Sujet. Supports may come after the others:
    // where the listing does not have them, they are read from the holdings.
    [[nodiscard]] std::vector<Diagramme> prend();

  private:
    class Interieur;
    std::unique_ptr<Interieur> m_interieur;
};

// All subjects at once, in the order of Sujet.
[[nodiscard]] std::vector<Diagramme> statistiques(const Contexte& c);
// At most so many bars: what follows the first ones becomes one, "Autres (37)", before the films that do not say.
[[nodiscard]] Diagramme abrege(Diagramme diagramme, std::size_t auPlus);
// "26 (5,2 %)": the bar's films, and how many in a hundred of the listing's they are.
[[nodiscard]] std::string texteDuNombre(const Diagramme& diagramme, const Barre& barre);
// The same numbers as a text with a line for each bar, for who copies them.
[[nodiscard]] std::string texte(const Diagramme& diagramme);

// A chart as an SVG document of that width in pixels, its title, labels and numbers as text.
struct Couleurs {
    std::string fond = "#ffffff", texte = "#1f2328", discret = "#59636e", barre = "#2f6f9f";
};
[[nodiscard]] std::string svg(const Diagramme& diagramme, int largeur, const Couleurs& couleurs = {});

}  // namespace ensemble
