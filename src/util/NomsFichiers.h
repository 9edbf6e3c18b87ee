#pragma once

#include <string>
#include <string_view>

namespace util {

// The nine characters " \ / ? < > | * : replaced, in posters and exports by nothing.
[[nodiscard]] std::string nettoieNomFichier(std::string_view nom, std::string_view remplacement = "");
// A path of Windows that names its drive: "C:" and whatever follows.
[[nodiscard]] bool aUneLettreDeLecteur(std::string_view chemin);
// The folder with a separator appended unless it ends with one. Values from an older base may end in "\", and keep it. An empty
// folder stays empty: "/" would name the root.
[[nodiscard]] std::string avecSeparateur(std::string_view dossier);

}  // namespace util
