#pragma once

#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"
#include "util/Similarite.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace edit {

// The letters of every film of the catalogue, counted once for a batch: tells without reading the catalogue again that
// nothing resembles a new film, which is nearly always so.
class LettresDuCatalogue {
  public:
    // Counts the films of the base; those the batch adds afterwards come by `ajoute`, as they are stored.
    [[nodiscard]] static LettresDuCatalogue de(db::Base& base, dialogues::Dialogues& dialogues);

    void ajoute(std::string_view titre, std::string_view realisateur);
    [[nodiscard]] bool aUnProche(std::string_view titre, std::string_view realisateur) const;

  private:
    struct Film {
        std::uint32_t realisateur;  // index into m_realisateurs
        util::CompteLettres titre;
    };
    [[nodiscard]] std::uint32_t rangDe(std::string_view realisateur);

    std::vector<Film> m_films;
    std::vector<util::CompteLettres> m_realisateurs;
    std::unordered_map<std::string, std::uint32_t> m_rangs;
};

}  // namespace edit
