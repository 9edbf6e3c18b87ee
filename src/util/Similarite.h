#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace util {

// The letters of a text counted once, to compare it with many others: "a" to "z", the blank, "0" to "9", after lower
// case and accent folding; every other character is ignored.
struct CompteLettres {
    std::array<std::uint16_t, 40> nombre{};  // 37 used; padded for wide instructions
    std::uint32_t total = 0;
};
[[nodiscard]] CompteLettres compteLettres(std::string_view texte);

// What the letters of a text leave in two words: which kinds of letters it has, which more than once, digits by twos, and
// how many letters in all, as CompteLettres has it. Two texts differ by at least as many letters as their bits differ.
struct EmpreinteLettres {
    std::uint64_t genres = 0;
    std::uint32_t total = 0;
};
[[nodiscard]] EmpreinteLettres empreinteLettres(std::string_view texte);

// How alike two texts are by their letters, whatever their order: common letters over all letters, a percentage from
// 0 to 100, rounded halves to even; 0 when neither has any.
[[nodiscard]] int similarite(const CompteLettres& gauche, const CompteLettres& droite);
[[nodiscard]] int similarite(std::string_view gauche, std::string_view droite);

}  // namespace util
