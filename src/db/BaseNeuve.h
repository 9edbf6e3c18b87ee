#pragma once

#include "db/Chemins.h"

#include <string>

namespace db {

enum class BaseNeuve { Faite, SansModele, ModeleInutilisable, Echouee };

// Copies the template to `nom`, which nothing bears yet. The name is only given to a copy that opens as a base and is on
// the disk: on failure there is no such file.
[[nodiscard]] BaseNeuve creeDepuisLeModele(const Chemins& chemins, const std::string& nom);

// Why it could not be made, in French; for what Faite and SansModele mean there is nothing to say here.
[[nodiscard]] std::string raisonDeLEchec(BaseNeuve issue, const Chemins& chemins, const std::string& nom);

}  // namespace db
