#pragma once

#include "voisins/Examen.h"
#include "voisins/Tableau.h"

#include <optional>
#include <string>

// The import of another program's collection, step by step: each is a command of its own, and between them the window
// shows what was found. Only the last one writes.
namespace voisins {

struct CollectionChoisie {
    std::string chemin;
    Programme programme;
};

// Asks for the file, or the folder. Nothing when the user cancels, or once he was told why it cannot be read.
[[nodiscard]] std::optional<CollectionChoisie> choisitCollection(const acquire::Contexte& c, bool unDossier,
                                                                 const std::string& depart);
[[nodiscard]] std::optional<CollectionChoisie> reconnaitCollection(const acquire::Contexte& c,
                                                                   const std::string& chemin);

// Reads it and compares it with the base, with progress and stop; Nothing
// when it was stopped, or once the user was told why it cannot be read.
[[nodiscard]] std::optional<Examen> examineCollection(const acquire::Contexte& c, const std::string& chemin);

// The same of a table: first its lines, to show and match its columns, then its films.
[[nodiscard]] std::optional<Tableau> litTableauChoisi(const acquire::Contexte& c, const std::string& chemin);
[[nodiscard]] std::optional<Examen> examineTableau(const acquire::Contexte& c, const Tableau& tableau);

// Adds what the examination proposes, or what the user made of it; reports, and shows the base as it is then.
void importeCollection(const acquire::Contexte& c, const Examen& examen);

}  // namespace voisins
