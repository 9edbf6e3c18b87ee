#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>

// For this room only: little-endian values out of a page or a piece of one. A place outside of it is damage.
namespace jet::interne {

// What is wrong at one place of the file, as the end of a French sentence. The reader says which base, table, row and
// field it is about, in an ErreurJet.
class Dommage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

using Octets = std::span<const std::uint8_t>;

inline Octets morceau(Octets octets, std::size_t place, std::size_t longueur) {
    if (place > octets.size() || longueur > octets.size() - place) throw Dommage("un renvoi sort de sa page");
    return octets.subspan(place, longueur);
}

inline Octets entre(Octets octets, std::size_t debut, std::size_t fin) {
    if (fin < debut) throw Dommage("un champ finit avant son début");
    return morceau(octets, debut, fin - debut);
}

inline std::uint64_t entier(Octets octets, std::size_t place, std::size_t longueur) {
    const Octets lus = morceau(octets, place, longueur);
    std::uint64_t valeur = 0;
    for (std::size_t i = longueur; i-- > 0;)
        valeur = valeur << 8 | lus[i];
    return valeur;
}

inline std::uint8_t u8(Octets octets, std::size_t place) {
    return morceau(octets, place, 1)[0];
}
inline std::uint16_t u16(Octets octets, std::size_t place) {
    return static_cast<std::uint16_t>(entier(octets, place, 2));
}
inline std::uint32_t u32(Octets octets, std::size_t place) {
    return static_cast<std::uint32_t>(entier(octets, place, 4));
}
inline double reel64(Octets octets, std::size_t place) {
    return std::bit_cast<double>(entier(octets, place, 8));
}

// What leads to a row: its page, and its rank among that page's rows.
struct Pointeur {
    std::uint32_t page = 0;
    std::uint8_t rang = 0;
    friend bool operator==(const Pointeur&, const Pointeur&) = default;
};
inline Pointeur litPointeur(Octets octets, std::size_t place) {
    const std::uint32_t lu = u32(octets, place);
    return {lu >> 8, static_cast<std::uint8_t>(lu)};
}

}  // namespace jet::interne
