#pragma once

#include "edit/Contexte.h"
#include "util/Similarite.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace edit {

// The letters of every film of the catalogue, counted once for a batch: tells without reading the catalogue again that
// nothing resembles a new film, which is nearly always so.
class LettresDuCatalogue {
  public:
    // Counts the films of the base; those the batch adds afterwards come by `ajoute`, as they are stored.
    [[nodiscard]] static LettresDuCatalogue de(const Contexte& c);

    void ajoute(const db::CleFilm& film);
    [[nodiscard]] bool aUnProche(const db::CleFilm& film) const;

  private:
    struct Realisateur {
        util::CompteLettres lettres;
        std::vector<util::CompteLettres> titres;
    };

    std::vector<Realisateur> m_realisateurs;
    std::unordered_map<std::string, std::size_t> m_rangs;  // in m_realisateurs
};

}  // namespace edit
