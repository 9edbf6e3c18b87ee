#pragma once

#include "acquire/Contexte.h"
#include "acquire/DossierFiches.h"
#include "acquire/RapportImport.h"

#include <functional>
#include <string>

namespace acquire {

// Imports every sheet of the folder of txtCheminAjoutAuto: asks what must be known, stores the films, reports, and shows
// the films added that day. Stopped by the user or by a failure of the base, it reports what was added until then.
void cmdAjoutAuto_Click(const Contexte& c);

// The same for sheets that another command chose, or made. `range` tells what becomes of those that were neither added
// nor refused, before the report that it may add to.
void importeFiches(const Contexte& c, const FichesChoisies& fiches, const std::function<void(RapportImport&)>& range);

[[nodiscard]] std::string questionPossession(long nombre);

}  // namespace acquire
