#pragma once

#include "acquire/AdresseRecherche.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/Documents.h"

#include <string>

namespace app {

using acquire::kSiteMovieCovers;  // opened by Image3
// The user's guide, in the program folder, opened by Label4: the program has no page of its own yet.
inline constexpr const char* kGuide = "Guide/index.html";

// Opens an address, or a page by its path, in the user's browser; tells it when nothing could be started.
void ouvreLien(const std::string& adresse, systeme::Documents& documents, dialogues::Dialogues& dialogues);

}  // namespace app
