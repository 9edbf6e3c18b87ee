#pragma once

#include <string>

namespace systeme {

// The folder of the running executable, as the bytes of its name are, with its final separator; empty where the system
// does not say.
[[nodiscard]] std::string dossierDuProgramme();

// Where the desktop's rules have programs keep what is their user's, without a final separator.
[[nodiscard]] std::string dossierDesDonnees();

}  // namespace systeme
