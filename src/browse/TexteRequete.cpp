#include "browse/TexteRequete.h"

#include "browse/ZonesEtTris.h"
#include "util/Sql.h"

#include <cstddef>

namespace browse {

namespace {

constexpr std::array<std::string_view, 4> kChampsRecherche{"Titre", "Realisateur", "Annee", "Acteurs"};

std::string combine(std::string_view conditionZone, std::string_view condition) {
    if (condition.empty()) return std::string(conditionZone);
    if (conditionZone.empty()) return std::string(condition);
    return std::string(conditionZone).append(" AND ").append(condition);
}

}  // namespace

std::string construitRequete(int zone, int tri, std::string_view condition) {
    const Zone choisie = zoneDe(zone);
    std::string texte = "SELECT ";
    texte.append(choisie.selection).append(" ").append(choisie.origine);
    if (const std::string ou = combine(choisie.condition, condition); !ou.empty()) texte += " WHERE " + ou;
    return texte.append(" ORDER BY ").append(triDe(tri).champ).append(" ASC").append(choisie.triSupplementaire);
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
