#pragma once

#include "browse/Contexte.h"

namespace browse {

// The holdings at a glance, under the director: one short text for each of owned or not, lent and reserved.
enum Puce { kPucePossede, kPucePret, kPuceReserve };

// Shows what the base holds of the user's copy; what is being typed is the other page's.
void montrePuces(EtatFiche& fiche, const ChampsPossession& champs);

// Opens the page of the holdings at the field that the text tells of.
void cmdPuce_Click(const Contexte& c, int puce);

// "Possédé · DVD · Salon" or "Non possédé"; "Prêté à Paul depuis le 12/11/2026"; "Réservé pour Hélène". Empty where there
// is nothing to tell.
[[nodiscard]] std::string textePuce(const ChampsPossession& champs, Puce puce);

}  // namespace browse
