#pragma once

#include "db/Contexte.h"

#include <string>
#include <string_view>

namespace exportation {

// Replaces an exported file, given by its whole path, by the whole text, and announces it. False when it cannot be: what
// stood there still stands, and the notice line tells it, since it interrupts nobody.
bool ecritExport(const db::Contexte& c, const std::string& fichier, std::string_view octets);

// The notice of a file that stands at that whole path now: tells the path, opens it and shows its folder.
void annonceExport(const db::Contexte& c, const std::string& debut, const std::string& chemin);

}  // namespace exportation
