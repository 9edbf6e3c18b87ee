#pragma once

#include "db/CleFilm.h"
#include "platform/dao/Comparaison.h"

#include <string>
#include <string_view>

namespace ensemble {

// A film's bytes for sets and maps: the same ones exactly for what db::memeFilm holds for one film.
[[nodiscard]] inline std::string cleDeFilm(std::string_view titre, std::string_view realisateur) {
    return dao::cleDeComparaison(titre).append(1, '\0').append(dao::cleDeComparaison(realisateur));
}
[[nodiscard]] inline std::string cleDeFilm(const db::CleFilm& film) {
    return cleDeFilm(film.titre, film.realisateur);
}

}  // namespace ensemble
