#pragma once

#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/Documents.h"

#include <string>

namespace app {

// What Image3 opens: the site of the sheets.
inline constexpr const char* kSiteMovieCovers = "https://www.moviecovers.com/";
// The program's own page, opened by Label4.
inline constexpr const char* kPageAmbrelis = "https://ambrelis.example/";

// Opens an address in the user's browser; tells the address when nothing could be started.
void ouvreLien(const std::string& adresse, systeme::Documents& documents, dialogues::Dialogues& dialogues);

}  // namespace app
