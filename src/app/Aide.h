#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// The user's guide in the program folder: pages that link each other, the first one lists them.
inline constexpr const char* kDossierDuGuide = "Guide/";
inline constexpr const char* kSommaireDuGuide = "index.html";

void cmdAide_Click(const Contexte& c);  // what the program says of itself
void Image3_Click(const Contexte& c);   // the site of the sheets, in the user's browser
void Label4_Click(const Contexte& c);   // the guide, in its window
void AideDuPanneau(const Contexte& c);  // the page of what is shown
// A page by its name; where the guide is not in the program folder the keys are told instead.
void montreLeGuide(const Contexte& c, std::string page);
[[nodiscard]] std::string pageDuPanneau(const Etats& etats);

// From the guide to the user's browser: the page that is read, and a link that leads out of the guide. The user is told
// where no browser can be started.
void cmdPageAuNavigateur_Click(const Contexte& c, std::string page);
void LienDuGuide_Click(const Contexte& c, std::string adresse);

[[nodiscard]] std::string texteAPropos();

// "v. 2.4.0", from the version of the build.
[[nodiscard]] std::string texteVersion();

// The help captions of the function panels: each section's title (Label14) and description (Label7).
void metTextesAide(EtatFonctions& etat);

}  // namespace app
