#pragma once

#include "platform/dao/Connexion.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dao::interne {

// The fields of one table that a walk through a keyset reads and that its records do not keep: those of a record are read
// together, and once the walk goes on from record to record, those of several records in one look at the file.
class LectureDAvance {
  public:
    void demande(RangColonne colonne);  // the walk reads this column

    // The text at a position, as long as nobody changed the row since it was read. None: not read, or its row is gone.
    [[nodiscard]] std::optional<std::string_view> texte(long position, long long ligne, RangColonne colonne,
                                                        const Connexion& connexion, const Table& table) const;
    // How many records to read from this position on.
    [[nodiscard]] std::size_t combienDepuis(long position) const;
    // Reads these rows, which stand at the positions from `debut` on; empty: a record without a row of this table.
    void lit(long debut, const std::vector<std::optional<long long>>& lignes, Connexion& connexion, const Table& table);

  private:
    struct Lue {
        long long ligne = 0;
        bool presente = false;
        std::vector<std::string> textes;  // of the columns, in their order
    };

    std::vector<RangColonne> m_colonnes;
    std::vector<Lue> m_lues;
    std::size_t m_nombre = 0;  // of those in m_lues that hold
    long m_debut = 0;
    std::uint64_t m_version = 0, m_epoque = 0;
};

}  // namespace dao::interne
