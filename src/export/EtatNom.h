#pragma once

#include "platform/ecran/Controles.h"

namespace exportation {

// The two captions that show the program's name in two halves, and how far an RTF list is while it is made.
struct EtatNom {
    ecran::Etiquette lblNom1, lblNom2;

    EtatNom() { montreLeNom(); }
    void montreLeNom() {
        lblNom1.Caption = kDebut;
        lblNom2.Caption = kFin;
    }
    // The two halves are one word.
    [[nodiscard]] bool estLeNom() const { return lblNom1.Caption == kDebut && lblNom2.Caption == kFin; }

  private:
    static constexpr const char *kDebut = "Ambr", *kFin = "elis";
};

}  // namespace exportation
