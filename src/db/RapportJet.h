#pragma once

#include "db/DommagesJet.h"

#include <string>
#include <string_view>
#include <vector>

namespace db {

// What a genuine Jet base gave, and what of it has no place in a base of ours.
struct RapportJet {
    long films = 0;
    long possessions = 0;
    long affiches = 0;                  // posters that the base itself held
    long affichesAlterees = 0;          // those among them with characters that are no byte
    std::vector<std::string> tables;    // left out, by name
    std::vector<std::string> champs;    // left out, as "Films.Format"
    std::vector<std::string> fichiers;  // of the posters that the base names, as it does
    long affichesNonTrouvees = 0;       // those among them that stand nowhere
    std::vector<DommagesJet> dommages;  // of a base that was read in spite of its damage: the tables that are not whole

    // A line for the counts, and one for each kind of loss that there is; no line break at the end.
    [[nodiscard]] std::string texte() const;
    // The lines of what has no place alone, each after a line break.
    [[nodiscard]] std::string pertes() const;
    // Of a damaged base: what could be read of it and, for each table, the first losses; ended by a line break.
    [[nodiscard]] std::string texteDommages() const;

  private:
    [[nodiscard]] std::string affichesEnFichiers() const;
};

}  // namespace db
