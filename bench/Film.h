#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace bench {

struct Possession {
    std::string support, rangement, pret, reserve, fichier1, date, divers;
};

struct Film {
    std::string titre, realisateur, annee, origine, genre, duree, acteurs, resume, production;
    std::string dateAjout;
    int note = 0;  // 0: none
    std::optional<Possession> possession;
};

// Title and director are distinct below this number.
inline constexpr std::uint64_t kNombreMaxFilms = 1400000;

// The film of that number: always the same one, whatever the machine and the number of films around it. Among the
// first N films there are N/6 directors, seven films out of ten are owned, and one in 240 bears an older film's title.
[[nodiscard]] Film film(std::uint64_t numero);

}  // namespace bench
