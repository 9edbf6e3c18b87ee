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
    ajouteLigne(texte, gardes, "# affiche laissée dans la base car une autre image porte déjà le nom de son fichier.",
                "# affiches laissées dans la base car d'autres images portent déjà le nom de leur fichier.");
    ajouteLigne(texte, illisibles, "# fichier impossible à lire.", "# fichiers impossibles à lire.");
    return texte;
}

RapportConversion& RapportConversion::operator+=(const RapportConversion& autre) {
    exclus += autre.exclus;
    crees += autre.crees;
    inclus += autre.inclus;
    gardes += autre.gardes;
    illisibles += autre.illisibles;
    return *this;
}

}  // namespace db
