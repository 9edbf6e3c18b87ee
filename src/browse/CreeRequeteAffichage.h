#pragma once

#include "browse/Contexte.h"

#include <functional>
#include <string>

namespace browse {

// Rebuilds the listing and the tree. No film is current afterwards: who wants the same film again copies its title and
// director first and gives them to SelectionneTitre.
//
// A zone of -1 or a sort outside the list does nothing; 6 is the saved search zone. After a refusal, and when the listing
// cannot be made (db::RequeteEchouee after its message), listing and tree are as they were and the two lists name them.
void CreeRequeteAffichage(const Contexte& c, int zone, int tri, const std::string& condition = "");

// Runs what lists the base once it was closed and opened again: whatever comes of it, no node is left that leads into the
// listing of before.
void apresReouverture(const Contexte& c, const std::function<void()>& relit);

// The listing of the zone and sort shown over another base. A search ends: its zone is the one searched in.
void apresChangementDeBase(const Contexte& c);

// Runs a command that may fill the list anew: the keys are left there then, where what it did is to be seen.
void puisVersLaListe(const Contexte& c, const std::function<void()>& commande);

}  // namespace browse
