#include "db/Schema.h"

#include "db/ChampsPublies.h"

#include <algorithm>
#include <array>
#include <string>

namespace db {

namespace {

struct Colonne {
    std::string_view nom, type;
};
// The poster comes last, so that reading the other fields of a row stops before it.
constexpr std::array<Colonne, kChampsFilms.size()> kColonnesDeFilms{{{"Titre", "TEXT"},
                                                                     {"Realisateur", "TEXT"},
                                                                     {"Annee", "TEXT"},
                                                                     {"Origine", "TEXT"},
                                                                     {"Genre", "TEXT"},
                                                                     {"Duree", "TEXT"},
                                                                     {"Acteurs", "TEXT"},
                                                                     {"Resume", "TEXT"},
                                                                     {"Production", "TEXT"},
                                                                     {"Note", "INTEGER"},
                                                                     {"DateAjout", "TEXT"},
                                                                     {"Affiche", "BLOB"}}};
static_assert(std::ranges::is_permutation(kColonnesDeFilms, kChampsFilms, {}, &Colonne::nom));

// The row ids are declared, since compaction renumbers those that are not.
void ajouteTable(std::string& texte, std::string_view nom, std::span<const Colonne> colonnes) {
    texte.append("CREATE TABLE ").append(nom).append(" (\n  id INTEGER PRIMARY KEY");
    for (const Colonne& colonne : colonnes)
        texte.append(",\n  ").append(colonne.nom).append(" ").append(colonne.type);
    texte.append("\n);\n");
}

std::string tables() {
    std::array<Colonne, kChampsPersonnel.size()> possession;
    std::ranges::transform(kChampsPersonnel, possession.begin(), [](std::string_view champ) {
        return Colonne{champ, "TEXT"};
    });
    std::string texte = "\nPRAGMA user_version = 1;\n";
    ajouteTable(texte, "Films", kColonnesDeFilms);
    ajouteTable(texte, "Personnel", possession);
    return texte;
}

}  // namespace

std::string_view schema() {
    static const std::string texte = tables() + std::string(kIndexDesListes);
    return texte;
}

std::vector<dao::Cle> clesDesTables() {
    return {{"Titre", "Realisateur"}, {"Titre2", "Realisateur2"}};
}

}  // namespace db
