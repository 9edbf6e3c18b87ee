#pragma once

#include "browse/EtatFiche.h"

#include <string>

namespace exportation {

// The sheet on the screen as a text to complete by hand, lines ended by CR LF. The summary's own line ends, whatever they
// are, become CR LF too.
[[nodiscard]] std::string texteFiche(const std::string& titre, const browse::EtatFiche& fiche);

}  // namespace exportation
