#pragma once

#include "app/Contexte.h"

#include <string>
#include <vector>

namespace app {

// What starts of the program are asked to import. Each leaves it as a file in the program folder, and the program that
// runs there takes it when nothing else is under way: a command, a box, even the program's end only makes it wait.

// Of a program folder that ends with a separator; made, and private.
[[nodiscard]] std::string dossierDesDemandes(const std::string& dossierProgramme);
// Leaves a request; false when it could not be written.
[[nodiscard]] bool demandeOuverture(const std::string& dossierProgramme, const std::vector<std::string>& chemins);

[[nodiscard]] bool ouvertureDemandee(const Contexte& c);
// Imports what was asked for, all of it as one drop of these files is. What asked for it is gone before.
void ouvreCeQuiEstDemande(const Contexte& c);

}  // namespace app
