#pragma once

#include "edit/Contexte.h"

#include <string>

namespace edit {

// Is a film of the same title and the same director already in the catalogue? The equality is the base's own.
[[nodiscard]] bool TitreDejaExistant(const Contexte& c, const db::CleFilm& film);

// Makes the next question quick: the first one about a base reads the whole catalogue.
void prepareTitreDejaExistant(const Contexte& c);

[[nodiscard]] std::string requeteTitreDejaExistant(const db::CleFilm& film);

}  // namespace edit
