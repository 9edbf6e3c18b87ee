#include "platform/jet/CarteDesPages.h"

#include "platform/jet/Lignes.h"

#include <algorithm>

namespace jet::interne {

namespace {

constexpr std::uint8_t kEnLigne = 0, kSurDesPages = 1;
constexpr std::uint8_t kPageDeCarte = 0x05;
constexpr const char* kIllisible = "la carte de ses pages est illisible";
constexpr std::size_t kDebutBits = 4;  // on a map page

// Up to the first page that is not in the file: a crafted map could list a thousand times more of them than there are.
bool ajoute(std::vector<std::uint32_t>& liste, std::uint64_t premiere, Octets bits, std::uint32_t nombre) {
    for (std::size_t octet = 0; octet < bits.size(); ++octet)
        for (unsigned bit = 0; bits[octet] >> bit != 0; ++bit) {
            if ((bits[octet] >> bit & 1) == 0) continue;
            const std::uint64_t page = premiere + octet * 8 + bit;
            liste.push_back(static_cast<std::uint32_t>(std::min<std::uint64_t>(page, UINT32_MAX)));
            if (page >= nombre) return false;
        }
    return true;
}

}  // namespace

std::vector<std::uint32_t> pagesDeLaCarte(Pages& pages, Pointeur carte) {
    const Octets ligne = tranche(pages.format(), pages.lit(carte.page), carte.rang).octets;
    const std::vector<std::uint8_t> lue(ligne.begin(), ligne.end());
    const std::uint8_t forme = u8(lue, 0);
    std::vector<std::uint32_t> liste;
    if (forme == kEnLigne) {
        const std::uint32_t premiere = u32(lue, 1);
        ajoute(liste, premiere, Octets(lue).subspan(5), pages.nombre());
    } else if (forme == kSurDesPages) {
        const std::uint64_t parPage = (pages.format().taillePage - kDebutBits) * 8;
        std::uint64_t premiere = 0;
        for (std::size_t place = 1; place + 4 <= lue.size(); place += 4, premiere += parPage) {
            const std::uint32_t page = u32(lue, place);
            if (page == 0) continue;
            const Octets bits = pages.lit(page);
            if (bits[0] != kPageDeCarte) throw Dommage(kIllisible);
            if (!ajoute(liste, premiere, bits.subspan(kDebutBits), pages.nombre())) break;
        }
    } else {
        throw Dommage(kIllisible);
    }
    return liste;
}

}  // namespace jet::interne
