#pragma once

#include "edit/Contexte.h"

namespace acquire {

// What the imports and the web search work with.
struct Contexte : edit::Contexte {
    const ecran::CaseACocher& chkLancerConnexion;
};

}  // namespace acquire
