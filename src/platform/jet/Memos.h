#pragma once

#include "platform/jet/Lignes.h"

#include <cstdint>
#include <vector>

namespace jet::interne {

// Long values (memos, binary objects). A field holds their head: length, where they stand (in the row itself, in one row
// of another page, in a chain of rows), and there.
class Memos {
  public:
    Memos(Pages& pages, Reserve& reserve) : m_pages(pages), m_reserve(reserve) {}

    // The bytes, good until the next call. A length that is not the one announced is damage.
    [[nodiscard]] Octets lit(Octets champ);

  private:
    [[nodiscard]] Octets suit(Pointeur pointeur, std::uint64_t longueur, bool enChaine);
    void rassemble(Pointeur pointeur, std::uint64_t longueur, bool enChaine);

    Pages& m_pages;
    Reserve& m_reserve;
    std::vector<std::uint8_t> m_octets;
    std::vector<Pointeur> m_pieces;  // where they stand
};

}  // namespace jet::interne
