#pragma once

#include "db/Contexte.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace browse {

struct Possession {
    bool possede = false, prete = false, reserve = false;
    friend bool operator==(const Possession&, const Possession&) = default;
};

// Which films are owned, lent and reserved, by title and director as the listings join them. Read from the index of the
// holdings, never from their rows: eight bytes a holding. Of a film's several holdings, each counts.
class FilmsPossedes {
  public:
    // Reads on, for about as long as said, what changed since. True once all is known. Throws dao::ErreurDao.
    bool prepare(const db::Contexte& c, std::chrono::milliseconds duree);
    // What was known when `prepare` last ended; nothing of another base.
    [[nodiscard]] Possession cherche(std::string_view titre, std::string_view realisateur) const;

  private:
    void commence(const db::Contexte& c, const dao::Database::Version& version);
    [[nodiscard]] bool lit(const db::Contexte& c, std::chrono::milliseconds duree);

    std::vector<std::uint64_t> m_connues,
        m_enCours;  // a hash of both, and in its low bits what is so; the first in order
    dao::Database::Parcours m_parcours;
    dao::Database::Version m_version{};
    std::string m_base;
    bool m_aJour = false;
};

}  // namespace browse
