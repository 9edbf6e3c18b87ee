#pragma once

#include "platform/jet/Definition.h"

#include <string>

namespace jet::interne {

// A field's bytes as text, for the types that are neither text nor long; those of a type unknown here as they are.
[[nodiscard]] std::string valeurEnTexte(const Colonne& colonne, Octets octets);

}  // namespace jet::interne
