#pragma once

#include "util/Similarite.h"

#include <array>
#include <cstdint>
#include <vector>

namespace edit {

// The letters of a text in bytes, which are compared several at a time: what rules out nearly every pair of texts before
// their likeness is worked out. A count that no byte holds stops at the largest: texts then look closer than they are,
// never farther.
struct LettresAbregees {
    std::array<std::uint8_t, 40> nombre{};
    std::uint32_t total = 0;
};

[[nodiscard]] LettresAbregees abrege(const util::CompteLettres& compte);

// Sound, and nearly exact: what it refuses does not resemble.
[[nodiscard]] bool peutRessembler(const LettresAbregees& gauche, const LettresAbregees& droite);
// Sound as well, and less exact, but of so little memory that those of thousands of names stay in the processor's cache.
[[nodiscard]] bool peutRessembler(const util::EmpreinteLettres& gauche, const util::EmpreinteLettres& droite);
// Adds to `places` where those stand that may resemble `cherchee`; they are the `genres` of texts of `total` letters.
void retientPossibles(const std::vector<std::uint64_t>& genres, std::uint32_t total,
                      const util::EmpreinteLettres& cherchee, std::vector<std::uint32_t>& places);

// The most letters that a text may have to resemble one of so many.
[[nodiscard]] std::uint64_t totalAuPlus(std::uint64_t total);

}  // namespace edit
