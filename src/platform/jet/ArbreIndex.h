#pragma once

#include "platform/jet/FichierDePages.h"
#include "platform/jet/Octets.h"

#include <cstdint>
#include <string>
#include <vector>

namespace jet::interne {

inline constexpr std::size_t kCleMax = 1700;  // two of them fit on a page, so that a tree narrows

// The rows of a table in the order of their keys, as a tree of pages.
class ArbreIndex {
  public:
    // Any order; the keys are the bytes of CleIndex, no longer than kCleMax.
    void ajoute(std::string cle, Pointeur ligne);
    // Writes the pages; `proprietaire` is the page of the table's definition. Answers the root.
    std::uint32_t ecrit(FichierDePages& fichier, std::uint32_t proprietaire);
    [[nodiscard]] const std::vector<std::uint32_t>& pages() const { return m_pages; }  // written

  private:
    std::vector<std::string> m_entrees;
    std::vector<std::uint32_t> m_pages;
};

}  // namespace jet::interne
