#pragma once

#include <string>
#include <vector>

namespace acquire {

// A sheet file is one whose extension is FILM, in any letter case.
[[nodiscard]] bool estFiche(const std::string& nom);

// How many sheet files the folder holds; 0 for a folder that cannot be read, or none.
[[nodiscard]] long CompteFilmsRepertoire(const std::string& dossier);

// The caption for so many.
[[nodiscard]] std::string texteNombreDeFiches(long nombre);

// The names of the folder's files, in name order; none for an empty path.
[[nodiscard]] std::vector<std::string> fichiersDuDossier(const std::string& dossier);

}  // namespace acquire
