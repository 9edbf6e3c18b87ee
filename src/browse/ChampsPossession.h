#pragma once

#include <array>
#include <string>

namespace browse {

struct EtatFiche;

// What the holdings part of the sheet holds: as it was read, or as the user has it by now.
struct ChampsPossession {
    bool possede = false;
    std::array<std::string, 7> Text10;
    std::array<std::string, 3> Combo7;

    friend bool operator==(const ChampsPossession&, const ChampsPossession&) = default;
};

[[nodiscard]] ChampsPossession champsPossession(const EtatFiche& fiche);
// Puts them into the sheet; nothing else follows.
void ecritChampsPossession(EtatFiche& fiche, const ChampsPossession& champs);
// What the user changed of `lus` in `saisis`, over `base`.
[[nodiscard]] ChampsPossession reporteSaisie(const ChampsPossession& lus, const ChampsPossession& saisis,
                                             ChampsPossession base);

}  // namespace browse
