#pragma once

#include "db/Contexte.h"

#include <optional>
#include <string>

namespace db {

// A genuine Jet base stands where a base is about to be opened: when the user agrees it is converted, and the result
// takes its name. The original stays beside it, under a visible name that nothing bore.
//
// Of a damaged base, when the user agrees to that too, what can be read is converted; what is lost is told, and kept in a
// text beside it.
//
// At each moment the file's name leads to the untouched original or to the whole new base, the original then standing
// beside; a stop, a failure or a kill leaves the original under its name.
[[nodiscard]] bool estJet(const std::string& chemin);

// The report of the conversion, to be shown once its result is open; empty when there is none: the user said no, or was
// told why.
[[nodiscard]] std::optional<std::string> convertitJet(const Contexte& c, const std::string& chemin);

}  // namespace db
