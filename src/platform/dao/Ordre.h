#pragma once

#include "platform/dao/Souffle.h"
#include "platform/dao/Tampon.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace dao::interne {

// Eight bytes that compare as the number does, and a mark before them.
inline constexpr std::size_t kTailleDeNombre = 9;
[[nodiscard]] std::string_view cleDeNombre(double nombre, std::array<char, kTailleDeNombre>& octets);

// Keys of rows, added in any number and in any order, then put in order by their bytes.
class Ordre {
  public:
    void ajoute(std::string_view cle);
    [[nodiscard]] std::size_t taille() const { return m_fins.size(); }
    void vide();

    // The rows by their rank of addition, in order, those of equal keys as `precede` says.
    using Precede = std::function<bool(std::uint32_t, std::uint32_t)>;
    [[nodiscard]] std::vector<std::uint32_t> rangs(const Precede& precede, const Souffle& souffle = {});

    [[nodiscard]] std::string_view cle(std::uint32_t rang) const {
        const std::uint64_t debut = rang == 0 ? 0 : m_fins[rang - 1];
        return {m_cles.begin() + debut, m_fins[rang] - debut};
    }

  private:
    // What is compared first lies in the entry, so that hardly any comparison leaves for the keys: their first sixteen
    // bytes.
    struct Entree {
        std::uint64_t prefixe;
        std::uint64_t suite;
        std::uint32_t rang;
    };
    Tampon<char> m_cles;           // one after the other
    Tampon<std::uint64_t> m_fins;  // where each ends, by rank of addition
};

}  // namespace dao::interne
