#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "platform/dao/Valeur.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Where a film's poster is, as its `Affiche` column tells: nothing, "JPG" + the name of a file in the images folder, or
// "STO" + the picture's bytes.
namespace db {

inline constexpr std::int64_t kTailleMaxAffiche = 230000;  // bytes

// Title " - " director without the characters that file names forbid, then ".jpg".
[[nodiscard]] std::string nomFichierAffiche(std::string_view titre, std::string_view realisateur);
// The images folder with a trailing separator; an empty Text4 is first set to the program folder's "Images".
[[nodiscard]] std::string dossierImages(EtatStockage& etat, const Chemins& chemins);

[[nodiscard]] bool estDansLaBase(std::string_view affiche);  // begins with "STO"
[[nodiscard]] dao::Valeur valeurAfficheDansLaBase(std::string_view octets);
[[nodiscard]] dao::Valeur valeurAfficheFichier(std::string_view nom);

}  // namespace db
