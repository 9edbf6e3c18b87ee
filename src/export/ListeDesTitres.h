#pragma once

#include "db/Contexte.h"

#include <string>
#include <string_view>

// What the text list and the RTF list of the owned titles share.
namespace exportation {

inline constexpr const char* kTitreListe = "Créer la liste des titres";
inline constexpr const char* kAucunTitre = "Aucun titre personnel !";

// The statement of the owned titles, in that order.
[[nodiscard]] std::string requeteListe(std::string_view clauseOrderBy);

// Asks for the file: the whole path of what was typed and `extension`, whatever the name ends in; empty when nothing was
// typed.
[[nodiscard]] std::string demandeFichierListe(const db::Contexte& c, std::string_view extension);

}  // namespace exportation
