#pragma once

#include "platform/dialogues/Dialogues.h"

#include <optional>
#include <string>

namespace db {

// Asks for the password of a Jet base until it is the right one: it is kept nowhere. "" for a base that has none; empty
// when the user gives up.
[[nodiscard]] std::optional<std::string> demandeMotDePasse(const std::string& base, dialogues::Dialogues& dialogues);

}  // namespace db
