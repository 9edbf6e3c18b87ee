#pragma once

#include "browse/Contexte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace browse {

inline constexpr std::size_t kAffichesDeLaPage = 12;
inline constexpr std::int64_t kTailleMaxApercu = 4 << 20;  // bytes; a longer poster is shown on its sheet alone

enum class Renommage { Aucun, Genre, Support };

// What the right side shows while no film is chosen: the chosen heading, else the whole listing.
struct PageDuGroupe {
    std::string nom;
    std::string compte;       // "12 films"
    std::vector<int> noeuds;  // of its first films, in the order of the list
    Renommage renommage = Renommage::Aucun;

    friend bool operator==(const PageDuGroupe&, const PageDuGroupe&) = default;
};

[[nodiscard]] PageDuGroupe pageDuGroupe(const EtatListe& liste);

// The bytes of the poster of a film's node; nothing without one, and where it cannot be read: nobody is told, and no value
// of the window changes.
[[nodiscard]] std::optional<std::string> afficheDuNoeud(const Contexte& c, int noeud);
// The same of a film, listed or not; of several of one name, the first or the one of that rank.
[[nodiscard]] std::optional<std::string> afficheDuFilm(const Contexte& c, const db::CleFilm& film, long rang = 0);

}  // namespace browse
