#include "db/RapportConversion.h"

#include "util/Nombres.h"

#include <string_view>

namespace db {

namespace {

void ajouteLigne(std::string& texte, long nombre, std::string_view singulier, std::string_view pluriel) {
    if (nombre == 0) return;
    if (!texte.empty() && !texte.ends_with('\n')) texte += "\r\n";
    texte += util::phraseCompte(nombre, singulier, pluriel);
}

}  // namespace

// The first two lines end with a line break, also when nothing follows.
std::string RapportConversion::texte() const {
    std::string texte;
    if (exclus > 0)
        texte += util::phraseCompte(exclus, "# fichier exclu", "# fichiers exclus") + " car trop volumineux.\r\n";
    if (crees > 0) texte += util::phraseCompte(crees, "# fichier créé.", "# fichiers créés.") + "\r\n";
    ajouteLigne(texte, inclus, "# fichier inclu.", "# fichiers inclus.");
    ajouteLigne(texte, illisibles, "# fichier impossible à lire.", "# fichiers impossibles à lire.");
    ajouteLigne(texte, restants, "La conversion a été interrompue : relancez-la pour convertir l'affiche restante.",
                "La conversion a été interrompue : relancez-la pour convertir les # affiches restantes.");
    return texte;
}

RapportConversion& RapportConversion::operator+=(const RapportConversion& autre) {
    exclus += autre.exclus;
    crees += autre.crees;
    inclus += autre.inclus;
    illisibles += autre.illisibles;
    restants += autre.restants;
    return *this;
}

}  // namespace db
