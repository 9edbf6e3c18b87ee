#pragma once

#include "browse/Contexte.h"
#include "view/EtatFichiers.h"
#include "view/TableExtensions.h"
#include "view/Visionneuse.h"

#include <functional>

namespace view {

// What the commands of the poster viewer and of the attached files work with.
struct Contexte : browse::Contexte {
    Visionneuse& visionneuse;
    EtatFichiers& fichiers;
    const TableExtensions& extensions;
    std::function<bool(int noeud)> estVu{};  // whether the tree shows a film's node; none: it shows them all
};

}  // namespace view
