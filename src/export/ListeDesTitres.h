#pragma once

#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"

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
[[nodiscard]] std::string demandeFichierListe(dialogues::Dialogues& dialogues, const db::Chemins& chemins,
                                              std::string_view extension);

}  // namespace exportation
