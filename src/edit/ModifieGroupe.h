#pragma once

#include "edit/Contexte.h"

#include <string>

namespace edit {

// Renames the selected heading: every film under it gets a new genre, or a new support. The tree's menus; nothing happens
// unless a heading is selected.
void RenommerGenreFilms_Click(const Contexte& c);
void RenommeSupportFilms_Click(const Contexte& c);
// One of the two (`personnel`: the support), whose question proposes that name in the place of the present one.
void RenommeEnProposant(const Contexte& c, bool personnel, const std::string& nom);

// The values of the first film under the heading; "" for both when it has none, and for one that the listing lacks.
void RecupereInfosGroupeSelectionne(const Contexte& c, std::string& genre, std::string& support);

// `champ` of the holdings, or of the films; an empty value does nothing. Stops, with a message, at the first film without
// a row; stopped so, by the user or by a failure of the base, films already changed stay changed.
void ModifieGroupe(const Contexte& c, const std::string& champ, const std::string& valeur, bool personnel);

}  // namespace edit
