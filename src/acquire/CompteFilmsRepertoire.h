#pragma once

#include <cstdint>
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

// About how much of rows and posters an import of that folder adds to the base.
[[nodiscard]] std::int64_t octetsAAjouter(const std::string& dossier, bool affichesEnBase);

}  // namespace acquire
