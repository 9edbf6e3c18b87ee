#include "db/DommagesJet.h"

#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace db {

void DommagesJet::note(std::string detail) {
    if (details.size() < kDetailsMax)
        details.push_back(std::move(detail));
    else
        ++autresDetails;
}

bool DommagesJet::estEntiere() const {
    return details.empty() && std::cmp_equal(lues, annoncees);
}

std::string DommagesJet::texte(std::size_t maximum) const {
    std::string texte = "Table " + util::entreChevrons(table) + " : " +
                        util::phraseCompte(lues, "# ligne reprise sur ", "# lignes reprises sur ") +
                        std::to_string(annoncees);
    const auto compte = [&texte](long nombre, const char* singulier, const char* pluriel) {
        if (nombre > 0) texte += ", " + util::phraseCompte(nombre, singulier, pluriel);
    };
    compte(lignes, "# ligne illisible", "# lignes illisibles");
    compte(affiches, "# affiche illisible", "# affiches illisibles");
    compte(champs, "# autre champ illisible", "# autres champs illisibles");
    compte(retrouvees, "# ligne retrouvée hors de la table (peut-être supprimée autrefois)",
           "# lignes retrouvées hors de la table (peut-être supprimées autrefois)");
    texte += ".\n";
    const std::size_t dites = std::min(maximum, details.size());
    for (std::size_t i = 0; i < dites; ++i)
        texte += "- " + details[i] + ".\n";
    const long reste = static_cast<long>(details.size() - dites) + autresDetails;
    if (reste > 0) texte += util::phraseCompte(reste, "- et # autre.\n", "- et # autres.\n");
    return texte;
}

std::string nomDesPertes(const std::string& base, int numero) {
    const std::filesystem::path chemin(base);
    const std::string marque = numero == 1 ? " (pertes).txt" : " (pertes " + std::to_string(numero) + ").txt";
    return (chemin.parent_path() / (chemin.stem().string() + marque)).string();
}

std::optional<std::string> gardeLesPertes(const std::string& base, const std::string& lue,
                                          const std::vector<DommagesJet>& dommages) {
    constexpr int kNomsEssayes = 1000;
    std::string texte = "Ce qui n'a pas pu être lu de la base " + lue + " :\n";
    for (const DommagesJet& table : dommages)
        texte += "\n" + table.texte();
    for (int numero = 1; numero < kNomsEssayes; ++numero) {
        const std::string nom = nomDesPertes(base, numero);
        const fichiers::Creation issue = fichiers::cree(nom, texte);
        if (issue == fichiers::Creation::Faite) return nom;
        if (issue == fichiers::Creation::Echouee) break;
    }
    return std::nullopt;
}

}  // namespace db
