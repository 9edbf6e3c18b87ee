#pragma once

#include "browse/Contexte.h"

#include <string>

namespace browse {

// Selects the pseudo-zone "Recherche", added to the zone list where it is missing, and shows the films of the saved
// search condition and zone.
void CreeEtAfficheRecherche(const Contexte& c);

// The same for the films added on that day ("21/11/2026").
void montreAjoutsDuJour(const Contexte& c, const std::string& date);

}  // namespace browse
