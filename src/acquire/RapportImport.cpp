#include "acquire/RapportImport.h"

#include "util/Nombres.h"

#include <string_view>

namespace acquire {
namespace {

// Nothing for an empty list.
std::string paragraphe(std::string_view titre, const std::vector<std::string>& elements) {
    std::string texte;
    for (const std::string& element : elements)
        texte += (texte.empty() ? "" : ", ") + element;
    return texte.empty() ? "" : "\n" + std::string(titre) + "\n" + texte;
}

}  // namespace

std::string RapportImport::texte() const {
    std::string texte = util::phraseCompte(ajoutes, "# film ajouté.", "# films ajoutés.");
    if (const long refuses = static_cast<long>(titresRefuses.size()); refuses > 0)
        texte +=
            "\n" + util::phraseCompte(refuses, "# film non ajouté", "# films non ajoutés") + " car déjà dans la base.";
    return texte + paragraphe("- Image manquante :", affichesManquantes) +
           paragraphe("- Déjà existant : ", titresRefuses) + paragraphe("- Fiche illisible :", fichesIllisibles);
}

}  // namespace acquire
