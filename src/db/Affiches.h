#pragma once

#include "db/DossierImages.h"
#include "platform/dao/Valeur.h"
#include "platform/fichiers/Fichiers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Where a film's poster is, as its `Affiche` column tells: nothing, "JPG" + the name of a file in the images folder, or
// "STO" + the picture's bytes. The name may come from anywhere and say anything: it is one name, in that one folder.
namespace db {

inline constexpr std::int64_t kTailleMaxAffiche = 230000;    // bytes, in the base
inline constexpr std::int64_t kTailleMaxImage = 64LL << 20;  // bytes; a file that is larger is no poster

// What the column begins with when there is a poster.
inline constexpr std::string_view kDansUnFichier = "JPG";
inline constexpr std::string_view kDansLaBase = "STO";
inline constexpr std::size_t kTaillePrefixe = 3;

// Title " - " director without the characters that file names forbid, then ".jpg".
[[nodiscard]] std::string nomFichierAffiche(std::string_view titre, std::string_view realisateur);
// The same for the second film whose poster would bear that name: "… (2).jpg".
[[nodiscard]] std::string nomNumerote(const std::string& nom, int numero);
[[nodiscard]] std::string sansNumero(const std::string& nom);  // "a - b (2).jpg" -> "a - b.jpg"

[[nodiscard]] bool estDansLaBase(std::string_view affiche);  // begins with kDansLaBase
[[nodiscard]] dao::Valeur valeurAfficheDansLaBase(std::string_view octets);
[[nodiscard]] dao::Valeur valeurAfficheFichier(std::string_view nom);

// The file's name in a value that is not in the base: the last part of what it says, whatever separates the parts. What
// no file could be named comes out empty or leads to no file.
[[nodiscard]] std::string nomDansLeDossier(std::string_view affiche);
// The poster's file, an ordinary one which stands in the folder itself; the only way from a value to a file.
[[nodiscard]] std::optional<fichiers::Place> fichierAffiche(const std::string& dossier, std::string_view affiche);
// The same of a poster that came with its base and is not in the images folder: in "Images" beside that base, or right
// beside it. Such a file is only read.
[[nodiscard]] std::optional<fichiers::Place> afficheVoisine(const std::string& base, std::string_view affiche);
// The bytes of one in the folder; empty when there is no such file, or when it cannot be read or is longer.
[[nodiscard]] std::optional<std::string> litAffiche(const std::string& dossier, std::string_view affiche,
                                                    std::int64_t limite = kTailleMaxImage);

}  // namespace db
