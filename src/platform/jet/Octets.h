#pragma once

#include "platform/jet/ErreurJet.h"
#include "platform/jet/Pages.h"

#include <bit>
#include <cstddef>
#include <cstdint>

// For this room only: little-endian values out of a page. Every reading is checked: a place outside is damage.
namespace jet::interne {

inline Page morceau(Page octets, std::size_t place, std::size_t longueur) {
    if (place > octets.size() || longueur > octets.size() - place) throw ErreurJet("un renvoi sort de sa page");
    return octets.subspan(place, longueur);
}

inline std::uint64_t entier(Page octets, std::size_t place, std::size_t longueur) {
    const Page lus = morceau(octets, place, longueur);
    std::uint64_t valeur = 0;
    for (std::size_t i = longueur; i-- > 0;)
        valeur = valeur << 8 | lus[i];
    return valeur;
}

inline std::uint8_t u8(Page octets, std::size_t place) {
    return morceau(octets, place, 1)[0];
}
inline std::uint16_t u16(Page octets, std::size_t place) {
    return static_cast<std::uint16_t>(entier(octets, place, 2));
}
inline std::uint32_t u32(Page octets, std::size_t place) {
    return static_cast<std::uint32_t>(entier(octets, place, 4));
}
inline double reel64(Page octets, std::size_t place) {
    return std::bit_cast<double>(entier(octets, place, 8));
}

}  // namespace jet::interne
