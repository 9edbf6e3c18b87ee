#pragma once

namespace view {

// The window frmFichiersFilm. Its caption and its buttons follow the film of the sheet, and are the sheet's.
struct EtatFichiers {
    bool Visible = false;
    int presentations = 0;  // rises each time it is asked for: it then comes before the others
};

}  // namespace view
