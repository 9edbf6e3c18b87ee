#pragma once

#include "platform/dao/Ordre.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace dao::interne {

// Rows that come nearly in order, as an index brings them: an index orders by letters, which Jet's order follows but for
// accents, capitals, apostrophes and hyphens. They are ordered block after block, and keys are kept for one block alone;
// blocks hardly overlap. Where they do, keys of all rows are worked out once more.
class PresqueEnOrdre {
  public:
    // `precede` is a strict order, which agrees with that of the keys; `ajouteCle` adds a row's key once more.
    PresqueEnOrdre(Ordre::Precede precede, std::function<void(std::uint32_t, Ordre&)> ajouteCle)
        : m_precede(std::move(precede)), m_ajouteCle(std::move(ajouteCle)) {}

    void ajoute(std::uint32_t rang, std::string_view cle);
    // All of them, in order; what was added is forgotten.
    [[nodiscard]] std::vector<std::uint32_t> rangs(const Souffle& souffle);

  private:
    void finitLeBloc();
    void rangeParCles(const Souffle& souffle);
    void reunisLesBlocs(const Souffle& souffle);

    Ordre::Precede m_precede;
    std::function<void(std::uint32_t, Ordre&)> m_ajouteCle;
    Tampon<std::uint32_t> m_rangs;    // as they came, those of whole blocks in order
    std::vector<std::size_t> m_fins;  // of the blocks
    Ordre m_bloc;                     // the keys of the last rows
    std::size_t m_melees = 0;         // rows of a block that stand before the end of the one before
};

}  // namespace dao::interne
