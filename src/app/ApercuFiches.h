#pragma once

#include "acquire/ApercuFiches.h"
#include "app/Contexte.h"

namespace app {

// acquire's, and what is shown of the films is made again. Answers what it answers.
std::vector<std::string> completeLesFilms(const Contexte& c, const acquire::FichesChoisies& fiches);

}  // namespace app
