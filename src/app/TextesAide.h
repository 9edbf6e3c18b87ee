#pragma once

namespace app {

struct EtatFonctions;

// The help captions of the function panels: each section's title (Label14) and description (Label7).
void metTextesAide(EtatFonctions& etat);

}  // namespace app
