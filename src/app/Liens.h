#pragma once

#include "acquire/SiteMovieCovers.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/Documents.h"

#include <string>

namespace app {

using acquire::kSiteMovieCovers;  // opened by Image3
// The program's own page, opened by Label4.
inline constexpr const char* kPageAmbrelis = "https://ambrelis.example/";

// Opens an address in the user's browser; tells the address when nothing could be started.
void ouvreLien(const std::string& adresse, systeme::Documents& documents, dialogues::Dialogues& dialogues);

}  // namespace app
