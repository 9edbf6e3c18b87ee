#pragma once

#include "db/ChampsPublies.h"
#include "util/Tables.h"

#include <array>
#include <string>
#include <string_view>

namespace browse {

struct EtatFiche;

// Where a field of a holding stands on the sheet: which of its control arrays, and its place there.
struct CaseDeChamp {
    enum class Tableau { Text10, Combo7 };
    std::string_view champ;
    Tableau tableau;
    std::size_t rang;
};
inline constexpr std::array<CaseDeChamp, db::kChampsDePossession.size()> kCasesDesChamps{
    {{"Rangement", CaseDeChamp::Tableau::Text10, 3},
     {"Fichier1", CaseDeChamp::Tableau::Text10, 0},
     {"Fichier2", CaseDeChamp::Tableau::Text10, 1},
     {"Fichier3", CaseDeChamp::Tableau::Text10, 2},
     {"Pret", CaseDeChamp::Tableau::Combo7, 0},
     {"Reserve", CaseDeChamp::Tableau::Combo7, 1},
     {"Date", CaseDeChamp::Tableau::Text10, 6},
     {"Divers", CaseDeChamp::Tableau::Text10, 4},
     {"Support", CaseDeChamp::Tableau::Combo7, 2}}};
static_assert(util::disentLesMemes(kCasesDesChamps, &CaseDeChamp::champ, db::kChampsDePossession));

// What the holdings part of the sheet holds: as it was read, or as the user has it by now.
struct ChampsPossession {
    bool possede = false;
    std::array<std::string, 7> Text10;
    std::array<std::string, 3> Combo7;

    [[nodiscard]] const std::string& valeur(const CaseDeChamp& celle) const {
        return celle.tableau == CaseDeChamp::Tableau::Combo7 ? Combo7[celle.rang] : Text10[celle.rang];
    }
    [[nodiscard]] std::string& valeur(const CaseDeChamp& celle) {
        return celle.tableau == CaseDeChamp::Tableau::Combo7 ? Combo7[celle.rang] : Text10[celle.rang];
    }
    friend bool operator==(const ChampsPossession&, const ChampsPossession&) = default;
};

[[nodiscard]] ChampsPossession champsPossession(const EtatFiche& fiche);
// Puts them into the sheet; nothing else follows.
void ecritChampsPossession(EtatFiche& fiche, const ChampsPossession& champs);
// What the user changed of `lus` in `saisis`, over `base`.
[[nodiscard]] ChampsPossession reporteSaisie(const ChampsPossession& lus, const ChampsPossession& saisis,
                                             ChampsPossession base);

}  // namespace browse
