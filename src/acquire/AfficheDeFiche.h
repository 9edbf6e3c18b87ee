#pragma once

#include "acquire/DossierFiches.h"
#include "edit/FilmExamine.h"

#include <string>

namespace acquire {

// The poster beside a sheet: whether the base, or the images folder, takes it.
struct AfficheDeFiche {
    edit::SortDeLAffiche sort = edit::SortDeLAffiche::Absente;
    std::string octets{};  // of one that is taken
    std::string manque{};  // what keeps it out, for the report; nothing where it goes without a word
};

[[nodiscard]] AfficheDeFiche afficheDeFiche(const DossierFiches& dossier, const std::string& fiche, bool dansLaBase);

}  // namespace acquire
