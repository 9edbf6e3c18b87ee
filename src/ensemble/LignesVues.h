#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ensemble {

// A set of the listing's rows, by their positions from 1: what is to be seen of it.
class LignesVues {
  public:
    LignesVues() = default;
    explicit LignesVues(std::size_t lignes) : m_mots((lignes + 63) / 64) {}
    [[nodiscard]] static LignesVues toutes(std::size_t lignes) {
        LignesVues vues(lignes);
        for (std::uint32_t position = 1; position <= lignes; ++position)
            vues.ajoute(position);
        return vues;
    }

    void ajoute(std::uint32_t position) {
        m_nombre += !contient(position);
        m_mots[(position - 1) / 64] |= bit(position);
    }
    // False for a position beyond the listing, and for 0.
    [[nodiscard]] bool contient(std::uint32_t position) const {
        return position != 0 && (position - 1) / 64 < m_mots.size() &&
               (m_mots[(position - 1) / 64] & bit(position)) != 0;
    }
    [[nodiscard]] long nombre() const { return m_nombre; }

    friend bool operator==(const LignesVues&, const LignesVues&) = default;

  private:
    [[nodiscard]] static std::uint64_t bit(std::uint32_t position) { return 1ULL << ((position - 1) % 64); }

    std::vector<std::uint64_t> m_mots;
    long m_nombre = 0;
};

}  // namespace ensemble
