#include "ui/ModeleApercu.h"

namespace ui {

Cellule ModeleApercu::cellule(int rang, int colonne) const {
    const ensemble::Changement& celui = m_changements[static_cast<std::size_t>(rang)];
    const std::string* textes[] = {&celui.film.titre, &celui.film.realisateur, &celui.avant, &celui.apres};
    return {.texte = texteDeLigne(*textes[colonne]), .forte = colonne == Apres, .discrete = colonne == Realisateur};
}

}  // namespace ui
