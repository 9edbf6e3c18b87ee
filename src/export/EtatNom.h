#pragma once

#include "platform/ecran/Controles.h"

namespace exportation {

// The two captions that show the program's name in two halves, and how far an RTF list is while it is made.
struct EtatNom {
    ecran::Etiquette lblNom1, lblNom2;

    EtatNom() { montreLeNom(); }
    void montreLeNom() {
        lblNom1.Caption = "Ambr";
        lblNom2.Caption = "elis";
    }
};

}  // namespace exportation
