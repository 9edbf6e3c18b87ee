#include "export/Balises.h"

namespace exportation {

texteriche::Style Balise::appliqueeA(texteriche::Style style) const {
    style.police = kPoliceListe;
    style.taille = taille;
    style.couleur = couleur.value_or(style.couleur);
    style.gras |= gras;
    style.italique |= italique;
    return style;
}

}  // namespace exportation
