#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/SelectionneTitre.h"
#include "edit/RaffraichitBoitesDeroulantes.h"

namespace edit {

// How a change of the base is shown. All of it outlives the commands.
struct SuitesModification {
    browse::AffichageApresModification& affichageApresModification;
    browse::SelectionneTitre& selectionneTitre;
    browse::AfficheNbTitres& afficheNbTitres;
    BoitesDeroulantes& boites;
};

}  // namespace edit
