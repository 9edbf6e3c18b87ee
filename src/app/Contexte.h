#pragma once

#include "acquire/Contexte.h"
#include "app/Etats.h"
#include "export/Contexte.h"
#include "view/Contexte.h"

namespace app {

class Saisies;

// What the commands that join several rooms work with. It is each room's context too, so that every command of the
// program can be handed this one.
struct Contexte : acquire::Contexte {
    Etats& etats;
    view::Contexte vue;
    exportation::Contexte sorties;
    view::TableExtensions& extensions;
    Saisies& saisies;
    const bool& arbreRelu;  // the tree was filled anew since the gesture that the running command answers

    operator const view::Contexte&() const { return vue; }
    operator const exportation::Contexte&() const { return sorties; }
};

}  // namespace app
