#pragma once

#include <string>
#include <string_view>

// A path as somebody types it.
namespace fichiers {

// A path of Windows ("C:\Films", "D:/Films", "\\serveur\films"), which leads nowhere here as it stands.
[[nodiscard]] bool estCheminWindows(std::string_view chemin);

// Made whole: "~" and "~/..." stand for the user's own folder, and what does not begin at the root lies in `dossier`. An
// empty path, and one of Windows, stay as they are.
[[nodiscard]] std::string cheminTape(std::string_view tape, std::string_view dossier);

}  // namespace fichiers
