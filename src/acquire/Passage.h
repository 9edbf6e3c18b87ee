#pragma once

#include "acquire/AffichesImportees.h"
#include "acquire/LotImport.h"

#include <functional>
#include <optional>
#include <string>

namespace acquire {

// Why a passage ended early, as the user is told: a text, and the style of its box.
struct EchecDePassage {
    std::string texte;
    int style;
};

// Runs one passage of an import. `parcourt` stores films lot by lot. Where a poster cannot be written, `garde` stores the
// films before it, which are whole; what is left of the last lot, and its posters, goes. Nothing comes back from a passage
// that went to its end, nor where what failed was shown already.
[[nodiscard]] std::optional<EchecDePassage> conduitPassage(LotImport& lot, AffichesImportees& affiches,
                                                           const std::function<void()>& parcourt,
                                                           const std::function<void()>& garde);

// Stores a lot, the files of its posters before the rows that name them. Throws db::EchecConversion or dao::ErreurDao.
void confirme(LotImport& lot, AffichesImportees& affiches);

}  // namespace acquire
