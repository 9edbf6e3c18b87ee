#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// What keys do beside the buttons. They act on what is seen: a film whose sheet is hidden is neither corrected nor
// deleted, and no key throws away a text that was typed and not stored without asking.

void QuittePanneau(
    const Contexte& c);  // back to the sheet of the current film, else to the presentation; then the list
void SaisieManuelle(const Contexte& c);  // the page of manual entry; one already begun is taken up again
void ModifieFilmAffiche(const Contexte& c);
void SupprimeFilmAffiche(const Contexte& c);
void ValideSaisie(
    const Contexte& c);  // stores what is being typed: the page of entry, or the holdings of the film shown
void MontreTouches(const Contexte& c);

// The button, the menu and the key that correct the film of the sheet: a correction that was begun goes on.
void cmdModifierTitre_Click(const Contexte& c);

[[nodiscard]] std::string texteTouches();  // the keys of the window, told to the user

}  // namespace app
