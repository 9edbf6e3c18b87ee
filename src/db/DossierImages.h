#pragma once

#include "db/Contexte.h"

#include <optional>
#include <string>

// The folder of the poster files, as Text4 names it: from the root, from "~" or from the program folder. A path of another
// machine ("D:\Films\Images", from settings of old) is the folder that its end leads to, under the program folder or
// beside the base. An empty Text4 is first set to the program folder's "Images".
namespace db {

// Its path from the root, with a final separator; Text4 then says so too, so that the settings name the same folder
// wherever the program is started from. Empty when Text4 leads to no folder that posters could be in.
[[nodiscard]] std::string dossierImages(const Contexte& c);

// Why it is no folder for posters, to be told before anything is written; nothing when it is one, there or to be made.
[[nodiscard]] std::optional<std::string> refusDossierImages(const Contexte& c);

// That a folder lies in "Tmp", where no poster would outlive the program; nothing when it does not.
[[nodiscard]] std::optional<std::string> refusDansTmp(const std::string& dossier, const Chemins& chemins);

}  // namespace db
