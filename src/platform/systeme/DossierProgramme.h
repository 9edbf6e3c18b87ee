#pragma once

#include <string>

namespace systeme {

// The folder of the running executable, as the bytes of its name are, with its final separator; empty where the system
// does not say.
[[nodiscard]] std::string dossierDuProgramme();

}  // namespace systeme
