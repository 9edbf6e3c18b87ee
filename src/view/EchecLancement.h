#pragma once

#include "platform/systeme/Programmes.h"

#include <string>

namespace view {

inline constexpr const char* kManqueDeMemoire = "Le système manque de mémoire pour exécuter le fichier.";

// Why that program was not started, for the user.
[[nodiscard]] std::string texteEchecLancement(systeme::Lancement issue, const std::string& programme);

}  // namespace view
