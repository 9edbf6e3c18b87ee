#include "browse/TexteRequete.h"

#include "util/Sql.h"

#include <cstddef>

namespace browse {

namespace {

struct Zone {
    std::string_view selection, origine, condition, triSupplementaire;
};

constexpr std::string_view kTriPersonnel = ", Titre2 ASC";
constexpr std::string_view kJointure =
    "FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2)";

// Zone 0 writes its join without parentheses. Titre2 is always null in the rows of zone 5, which orders by it all the
// same.
constexpr std::array<Zone, 6> kZones{{
    {"*",
     "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2",
     "", kTriPersonnel},
    {"*", "FROM Films", "", ""},
    {"*", kJointure, R"(Pret="")", kTriPersonnel},
    {"*", kJointure, R"(Pret<>"")", kTriPersonnel},
    {"*", kJointure, R"(Reserve<>"")", kTriPersonnel},
    {"DISTINCTROW *",
     "FROM Films LEFT JOIN Personnel ON (Films.Realisateur = Personnel.Realisateur2) AND (Films.Titre = "
     "Personnel.Titre2)",
     "((Personnel.Titre2) Is Null)", kTriPersonnel},
}};
constexpr Zone kZoneInconnue{"*", "", "", ""};

constexpr std::array<std::string_view, 9> kCles{"Titre ASC",   "Titre ASC", "Annee ASC", "Realisateur ASC", "Genre ASC",
                                                "Origine ASC", "Duree ASC", "Note ASC",  "Support ASC"};

constexpr std::array<std::string_view, 4> kChampsRecherche{"Titre", "Realisateur", "Annee", "Acteurs"};

const Zone& zoneDe(int zone) {
    return zone >= 0 && zone < static_cast<int>(kZones.size()) ? kZones[static_cast<std::size_t>(zone)] : kZoneInconnue;
}

std::string combine(std::string_view conditionZone, std::string_view condition) {
    if (condition.empty()) return std::string(conditionZone);
    if (conditionZone.empty()) return std::string(condition);
    return std::string(conditionZone).append(" AND ").append(condition);
}

}  // namespace

std::string construitRequete(int zone, int tri, std::string_view condition) {
    const Zone& choisie = zoneDe(zone);
    std::string texte = "SELECT ";
    texte.append(choisie.selection).append(" ").append(choisie.origine);
    if (const std::string ou = combine(choisie.condition, condition); !ou.empty()) texte += " WHERE " + ou;
    return texte.append(" ORDER BY ").append(kCles.at(static_cast<std::size_t>(tri))).append(choisie.triSupplementaire);
}

std::string construitConditionRecherche(std::string_view texte, const std::array<bool, 4>& champs) {
    const std::string cherche = util::entreGuillemets(texte);
    std::string condition;
    for (std::size_t i = 0; i < champs.size(); ++i) {
        if (!champs[i]) continue;
        if (!condition.empty()) condition += "+";
        condition.append("INSTR(").append(kChampsRecherche[i]).append(", ").append(cherche).append(")");
    }
    return condition + ">0";
}

}  // namespace browse
