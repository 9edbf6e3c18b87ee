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
           util::phraseCompte(affiches, "# affiche dans la base.", "# affiches dans la base.") + affichesEnFichiers() +
           pertes();
}

std::string RapportJet::affichesEnFichiers() const {
    if (affichesNonTrouvees == 0) return {};
    return "\n" +
           util::phraseCompte(affichesNonTrouvees,
                              "# affiche n'a pas été trouvée : son fichier n'est ni dans le dossier des images, "
                              "ni à côté de la base.",
                              "# affiches n'ont pas été trouvées : leurs fichiers ne sont ni dans le dossier des "
                              "images, ni à côté de la base.");
}

std::string RapportJet::texteDommages() const {
    constexpr std::size_t kPertesMontrees = 8;  // of a table: the whole list is a text of its own
    std::string lignes = "Ce qui est lisible : " + texte() + "\n\nCe qui est perdu :\n";
    for (const DommagesJet& table : dommages)
        lignes += table.texte(kPertesMontrees);
    return lignes;
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
