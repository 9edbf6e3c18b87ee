#pragma once

#include "app/Contexte.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace app {

// The filter of the title tree, etats.filtre. It hides films and changes nothing else: the tree's nodes, the chosen one and
// the ticks stay what they are for every command.

// Filters the listing that is shown now: the nodes that stay to be seen, as FiltreTitres::noeudsVus says them; nothing where
// nothing is filtered, or the base cannot be read. None of them while `filtreTarderait`.
[[nodiscard]] std::optional<std::vector<std::int32_t>> noeudsFiltres(const Contexte& c);
// What stands over the tree when it has none.
[[nodiscard]] std::string raisonDuFiltreVide(const ensemble::EtatFiltre& filtre);
// It would read a large listing first.
[[nodiscard]] bool filtreTarderait(const Contexte& c);
// Reads on for it, between two commands. True when there is nothing left to read, or nothing to be read.
[[nodiscard]] bool prepareLeFiltre(const Contexte& c, std::chrono::milliseconds duree);

// Only the films of these rows of the listing are shown, whatever is listed next, until `leveLaLimite`; `libelle` says which
// they are: "Drame". The keys go to the list.
void montreSeulement(const Contexte& c, const std::vector<std::uint32_t>& lignes, const std::string& libelle);
void leveLaLimite(const Contexte& c);
// After each command: a search shows all that it finds, whatever was typed in the filter before it.
void suisLesRecherches(const Contexte& c);

// How many films are ticked, and how many of these are out of sight: they are deleted with the others.
void montreCoches(const Contexte& c);

}  // namespace app
