#pragma once

#include "edit/Contexte.h"

#include <string>

namespace edit {

// Puts every title of the catalogue and of the holdings in the house form, and reports the films whose title was changed,
// also when it was stopped.
//
// Stopped anywhere, owned films still match their holdings: the base holds a title and its corrected form for equal, and
// where a rare letter makes them differ, the films and the holdings of that title are corrected together.
void cmdPonctuation_Click(const Contexte& c);

// The same without its question, its safety copy, its report and the refresh that follows. Answers how many films changed.
long corrigeTousLesTitres(const Contexte& c);

[[nodiscard]] bool sauvegardeAvantLesTitres(const Contexte& c);  // false: the user stopped it

[[nodiscard]] std::string rapportTitresModifies(long nombre);

}  // namespace edit
