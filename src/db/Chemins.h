#pragma once

#include <string>

namespace db {

// The working files of an installation, all built on the program folder (which ends with a separator).
struct Chemins {
    std::string dossier;      // program folder
    std::string modele;       // template of new bases
    std::string base;         // the open base; changes when the user opens another one
    std::string baseAbsente;  // the one that the settings name, while it is not there and `base` is open in its place
    std::string reglages;     // settings file
    std::string dossierTmp;   // "Tmp", without a trailing separator
    std::string afficheTmp;   // the temporary poster

    [[nodiscard]] static Chemins depuis(const std::string& dossierProgramme);
    [[nodiscard]] std::string dansDossier(const std::string& nom) const { return dossier + nom; }
    // What the next start is to open.
    [[nodiscard]] const std::string& baseARetenir() const { return baseAbsente.empty() ? base : baseAbsente; }
    // The path lies in "Tmp", which is emptied at shut-down, or leads there. It need not exist.
    [[nodiscard]] bool estDansTmp(const std::string& chemin) const;
};

}  // namespace db
