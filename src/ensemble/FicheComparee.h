#pragma once

#include "edit/FilmExamine.h"
#include "ensemble/Fusion.h"

#include <optional>

// A film that is read, beside the one that it resembles.
namespace ensemble {

// The base's film of that name, as a sheet would tell it; nothing where there is none. Throws db::RequeteEchouee after its
// message, dao::ErreurDao.
[[nodiscard]] std::optional<edit::FilmLu> filmDeLaBase(const Contexte& c, const db::CleFilm& film);

// The fields of both, to be shown; there is nothing to choose and nothing to carry out.
[[nodiscard]] PlanDeFusion compare(const edit::FilmLu& gauche, const edit::FilmLu& droite);

}  // namespace ensemble
