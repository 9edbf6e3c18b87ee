#pragma once

#include <string>

namespace db {

// The working files of an installation, all built on the program folder (which ends with a separator).
struct Chemins {
    std::string dossier;     // program folder
    std::string modele;      // template of new bases
    std::string base;        // the open base; changes when the user opens another one
    std::string reglages;    // settings file
    std::string dossierTmp;  // "Tmp", without a trailing separator
    std::string afficheTmp;  // the temporary poster

    [[nodiscard]] static Chemins depuis(const std::string& dossierProgramme);
    [[nodiscard]] std::string dansDossier(const std::string& nom) const { return dossier + nom; }
};

}  // namespace db
