#pragma once

#include "db/Contexte.h"

#include <string>

namespace view {

// Runs a program (EXE, COM and PIF files) or opens a document, any other file, with the application associated to it.
// Whatever fails is told to the user.
//
// True when the program or the application was started and, with `attente`, the program ended by itself: the user may
// ask to stop, which ends it.
// fichier: may stand in double quotes; what follows the closing one serves as `parametres` where these are empty.
// existence: a missing file is told before anything is tried.
// verbe, mode: "open" is the only verb here, and the desktop places the windows itself.
// parametres: of a program, separated and quoted as a shell would read them.
// dossier: where it starts; empty, the folder of the file.
bool LanceFichier(const db::Contexte& c, const std::string& fichier, bool existence, const std::string& verbe,
                  const std::string& parametres, const std::string& dossier, const std::string& mode, bool attente);

// Why that program was not started, for the user.
[[nodiscard]] std::string texteEchecLancement(systeme::Lancement issue, const std::string& programme);

}  // namespace view
