#pragma once

#include "acquire/Contexte.h"
#include "app/Etats.h"
#include "export/Contexte.h"
#include "view/Contexte.h"

namespace app {

class Saisies;

// What the commands that join several rooms work with. It is each room's context too, so that every command of the
// program can be handed this one.
struct Contexte {
    Etats& etats;
    acquire::Contexte acquisition;  // and, as such, that of edit, browse and db
    view::Contexte vue;
    exportation::Contexte sorties;
    view::TableExtensions& extensions;
    Saisies& saisies;

    operator const acquire::Contexte&() const { return acquisition; }
    operator const edit::Contexte&() const { return acquisition; }
    operator const browse::Contexte&() const { return acquisition; }
    operator const db::Contexte&() const { return acquisition; }
    operator const view::Contexte&() const { return vue; }
    operator const exportation::Contexte&() const { return sorties; }
};

}  // namespace app
