#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

// For this room only: little-endian values into a page or a piece of one.
namespace jet::interne {

inline constexpr std::size_t kTaillePage = 4096;
inline constexpr std::size_t kLigneMax = 4012;  // of a table; what the engine leaves for one row of a page

inline std::string petit(std::uint64_t valeur, std::size_t octets) {
    std::string texte;
    for (; texte.size() < octets; valeur >>= 8)
        texte += static_cast<char>(valeur & 0xFF);
    return texte;
}

// The most significant first, as keys and what index pages lead to are written.
inline std::string grand(std::uint64_t valeur, std::size_t octets) {
    std::string texte(octets, '\0');
    for (; octets-- > 0; valeur >>= 8)
        texte[octets] = static_cast<char>(valeur & 0xFF);
    return texte;
}

inline void pose(std::string& page, std::size_t place, std::string_view octets) {
    if (place > page.size() || octets.size() > page.size() - place) throw std::out_of_range("page");
    page.replace(place, octets.size(), octets);
}

inline void pose(std::string& page, std::size_t place, std::uint64_t valeur, std::size_t octets) {
    pose(page, place, petit(valeur, octets));
}

}  // namespace jet::interne
