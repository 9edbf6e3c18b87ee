#include "db/RapportJet.h"

#include "util/Nombres.h"

#include <string_view>

namespace db {

namespace {

std::string enumere(std::string_view singulier, std::string_view pluriel, const std::vector<std::string>& noms) {
    if (noms.empty()) return {};
    std::string texte = "\n" + std::string(noms.size() == 1 ? singulier : pluriel) + " : ";
    for (std::size_t i = 0; i < noms.size(); ++i)
        texte += (i == 0 ? "" : ", ") + noms[i];
    return texte + ".";
}

}  // namespace

std::string RapportJet::texte() const {
    return util::phraseCompte(films, "# film", "# films") + ", " +
           util::phraseCompte(possessions, "# possession", "# possessions") + ", " +
           util::phraseCompte(affiches, "# affiche dans la base.", "# affiches dans la base.") + pertes();
}

std::string RapportJet::pertes() const {
    std::string texte;
    if (affichesAlterees > 0)
        texte = "\n" + util::phraseCompte(affichesAlterees, "# affiche était abîmée : elle est reprise telle quelle.",
                                          "# affiches étaient abîmées : elles sont reprises telles quelles.");
    return texte + enumere("Table non reprise", "Tables non reprises", tables) +
           enumere("Champ non repris", "Champs non repris", champs);
}

}  // namespace db
