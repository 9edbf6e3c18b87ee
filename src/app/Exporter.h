#pragma once

#include "app/Contexte.h"
#include "export/Exporter.h"

#include <optional>
#include <string>

// "Exporter…": the films that are shown, chosen, or all of them, in a format of others. The lists of titles stay what they
// are, beside it.
namespace app {

enum class Etendue { Liste, Choisis, Base };

struct FilmsChoisis {
    exportation::FilmsAExporter films;
    std::optional<dao::Recordset> listeDeLaBase;  // else they are rows of the listing that is shown

    [[nodiscard]] dao::Recordset& liste(const Contexte& c) { return listeDeLaBase ? *listeDeLaBase : c.base.liste; }
};
// `Liste`: as it is shown, with its zone, sort, headings and filter. `Choisis`: the films that are ticked while some are,
// else the one that is chosen or those of the heading that is. Throws db::RequeteEchouee.
[[nodiscard]] FilmsChoisis filmsAExporter(const Contexte& c, Etendue etendue);

// What the window offers: how it calls each extent, "" where there is nothing of it.
struct OffreDExport {
    std::string liste, choisis, base;
};
[[nodiscard]] OffreDExport offreDExport(const Contexte& c);

struct DemandeDExport {
    enum class Format { Tableau, Page, Fiches };
    Format format = Format::Tableau;
    Etendue etendue = Etendue::Liste;
    exportation::Champs champs;
    std::string chemin;  // whole, of the file or of the folder
};
// Writes, and says so in the notice line. True when it is there. Throws as every command.
bool exporte(const Contexte& c, const DemandeDExport& demande, const exportation::ReduitAffiche& reduit);
// Of the whole base: holdings that no sheet belongs to go with no film; the notice line says so.
void noteLesPossessionsSansFiche(const Contexte& c, exportation::Bilan& bilan);

}  // namespace app
