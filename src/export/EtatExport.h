#pragma once

#include "platform/ecran/Controles.h"

namespace exportation {

// The line that tells where the last export is; hidden before the first, and once the user closed it.
struct EtatExport {
    ecran::Cadre frameExport;
    ecran::Etiquette lblExport;
    ecran::Bouton cmdOuvrirExport, cmdDossierExport;  // hidden when the file could not be written

    EtatExport() { frameExport.Visible = false; }
};

}  // namespace exportation
