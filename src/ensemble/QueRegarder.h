#pragma once

#include "ensemble/Contexte.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ensemble {

// A film to watch tonight, among those owned and not lent.
struct FilmPropose {
    db::CleFilm film;
    std::string annee, genre, duree, support, rangement;
    int note = 0;                             // 0: none
    [[nodiscard]] std::string texte() const;  // "« Alien » de Ridley Scott (1979), 1 h 57, noté 9/10, DVD, Étagère 3"
};

// A limit that is set leaves out the films that do not say.
struct Envies {
    int minutesAuPlus = 0;  // 0: as long as it likes
    std::string genre{};    // "": any; a film of several genres has each
    int noteAuMoins = 0;    // 0: any, films without one too
};

// A number below `combien`, which is at least 1.
using Hasard = std::function<std::size_t(std::size_t combien)>;

// Draws one film after the other; none comes again before all were shown, nor twice in a row.
class QueRegarder {
  public:
    // Reads the films that suit. Throws db::RequeteEchouee after its message, dao::ErreurDao.
    QueRegarder(const Contexte& c, const Envies& envies, Hasard hasard);

    [[nodiscard]] std::size_t nombre() const { return m_films.size(); }
    // Nothing where no film suits.
    [[nodiscard]] std::optional<FilmPropose> prochain();
    [[nodiscard]] std::string texteDuNombre() const;  // "Parmi 12 films", or why there is none

  private:
    std::vector<FilmPropose> m_films;  // those not shown yet of this round stand before m_reste
    std::size_t m_reste = 0;
    Hasard m_hasard;
};

// The genres of the films owned, one by one, in the base's order: what Envies::genre can be chosen from.
[[nodiscard]] std::vector<std::string> genresPossedes(const Contexte& c);

}  // namespace ensemble
