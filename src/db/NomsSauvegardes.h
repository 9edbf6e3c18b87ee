#pragma once

#include <ctime>
#include <optional>
#include <string>

namespace db {

// The command that a safety copy was taken before. Its place in the list is no part of any file.
enum class Avant {
    ImportFiches,
    ImportAncienne,
    ImportCollection,
    AffichesEnBase,
    AffichesEnFichiers,
    Compactage,
    Possessions,
    Renommage,
    Titres,
    Suppression,
    Complement,
    Retour
};

// What the name of a safety copy says: "Films (12) 2026-11-21 14h05m07 avant compactage.mdb". One name, so that a copy
// is there with all of it or not at all. The numbers rise, whatever the clock says.
struct NomSauvegarde {
    long numero = 0;
    std::time_t instant = 0;  // whole seconds, written in the machine's time zone
    Avant avant = Avant::Compactage;
};

[[nodiscard]] std::string nomDeSauvegarde(const std::string& base, const NomSauvegarde& nom);
// Of the copies of that base alone; nothing for any other name. `base` and `fichier` are names without a folder.
[[nodiscard]] std::optional<NomSauvegarde> litNomDeSauvegarde(const std::string& base, const std::string& fichier);
// "compactage", "correction des titres"…
[[nodiscard]] std::string libelle(Avant avant);

}  // namespace db
