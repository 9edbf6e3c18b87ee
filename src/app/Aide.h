#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// The user's guide, in the program folder: the program has no page of its own yet.
inline constexpr const char* kGuide = "Guide/index.html";

// What the program says of itself, and the pages that it opens in the user's browser; the user is told where none can be.
void cmdAide_Click(const Contexte& c);
void Image3_Click(const Contexte& c);  // the site of the sheets
void Label4_Click(const Contexte& c);  // the guide

[[nodiscard]] std::string texteAPropos();

// "v. 2.4.0", from the version of the build.
[[nodiscard]] std::string texteVersion();

// The help captions of the function panels: each section's title (Label14) and description (Label7).
void metTextesAide(EtatFonctions& etat);

}  // namespace app
