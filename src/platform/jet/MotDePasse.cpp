#include "platform/jet/MotDePasse.h"

#include "platform/jet/Textes.h"

#include <algorithm>
#include <array>
#include <vector>

namespace jet::interne {

namespace {

constexpr std::size_t kPlace = 0x42, kPlaceDate = 0x72;
constexpr std::size_t kTailleJet3 = 20, kTailleJet4 = 40;  // bytes; zeros fill what the password leaves

// The day the base was made, which hides the password of a Jet 4 base.
std::array<std::uint8_t, 4> masque(Octets entete) {
    const double date = reel64(entete, kPlaceDate);
    const auto jour = date > 0 && date < 1e9 ? static_cast<std::uint32_t>(date) : 0;
    std::array<std::uint8_t, 4> octets{};
    for (std::size_t i = 0; i < octets.size(); ++i)
        octets[i] = static_cast<std::uint8_t>(jour >> (8 * i));
    return octets;
}

}  // namespace

std::string motDePasse(Octets entete, bool jet4) {
    const Octets lus = morceau(entete, kPlace, jet4 ? kTailleJet4 : kTailleJet3);
    std::vector<std::uint8_t> octets(lus.begin(), lus.end());
    if (!jet4) {
        octets.erase(std::ranges::find(octets, 0), octets.end());
        return enUtf8(octets, false);
    }
    const auto cache = masque(entete);
    for (std::size_t i = 0; i < octets.size(); ++i)
        octets[i] = static_cast<std::uint8_t>(octets[i] ^ cache[i % cache.size()]);
    std::size_t fin = 0;
    while (fin < octets.size() && (octets[fin] | octets[fin + 1]) != 0)
        fin += 2;
    return enUtf8(Octets(octets).first(fin), true);
}

}  // namespace jet::interne
