#pragma once

#include "unit/browse/Fenetre.h"
#include "view/Contexte.h"

// The window's two sides with the poster viewer and the attached files. Commands of the room take `c`.
class FenetreVue : public Fenetre {
  protected:
    view::EtatAffiche affiche;
    view::Visionneuse visionneuse{affiche, chemins};
    view::EtatFichiers fichiers{true, 1};
    view::TableExtensions extensions;
    view::Contexte vue{fenetre, visionneuse, fichiers, extensions};
    const view::Contexte& c = vue;

    FenetreVue() { fenetre.suiviAffiche = vue.suiviAffiche = &visionneuse; }
};
