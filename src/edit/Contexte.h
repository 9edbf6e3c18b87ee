#pragma once

#include "browse/Contexte.h"
#include "edit/Accompagnement.h"
#include "edit/EtatAjout.h"
#include "edit/EtatMultiSuppression.h"

namespace edit {

// What the commands that change films and holdings work with.
struct Contexte : browse::Contexte {
    EtatAjout& ajout;
    EtatMultiSuppression& multiSuppression;
    Accompagnement& accompagnement;
};

}  // namespace edit
