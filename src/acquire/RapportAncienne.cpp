#include "acquire/RapportAncienne.h"

#include "util/Nombres.h"

#include <string_view>

namespace acquire {

namespace {

// Nothing for 0.
std::string ligne(long nombre, std::string_view singulier, std::string_view pluriel) {
    return nombre == 0 ? "" : "\n" + util::phraseCompte(nombre, singulier, pluriel);
}

}  // namespace

std::string RapportAncienne::texte() const {
    std::string texte = util::phraseCompte(ajoutes, "# film ajouté", "# films ajoutés");
    if (possedes > 0) texte += ", dont " + util::phraseCompte(possedes, "# possédé", "# possédés");
    texte +=
        "." + ligne(dejaPresents, "# film déjà présent.", "# films déjà présents.") +
        ligne(possessions, "# film déjà présent est maintenant possédé.",
              "# films déjà présents sont maintenant possédés.") +
        ligne(orphelines, "# possession reprise sans fiche de film.", "# possessions reprises sans fiche de film.") +
        ligne(affiches, "# image ajoutée à un film déjà présent.", "# images ajoutées à des films déjà présents.") +
        ligne(nonTrouvees, "# image non trouvée.", "# images non trouvées.") +
        ligne(tropGrandes, "# image trop grande pour la base.", "# images trop grandes pour la base.") + pertes;
    if (interrompu) texte += "\nL'import a été interrompu : relancez-le pour ajouter le reste.";
    return texte;
}

}  // namespace acquire
