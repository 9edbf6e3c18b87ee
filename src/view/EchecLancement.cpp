#include "view/EchecLancement.h"

namespace view {

namespace {

const char* raison(systeme::Lancement issue) {
    switch (issue) {
        case systeme::Lancement::Introuvable:
            return " : il est introuvable.";
        case systeme::Lancement::Interdit:
            return " : son exécution n'est pas permise.";
        case systeme::Lancement::PasUnProgramme:
            return " : ce n'est pas un programme que cette machine sait exécuter.";
        default:
            return ".";
    }
}

}  // namespace

std::string texteEchecLancement(systeme::Lancement issue, const std::string& programme) {
    if (issue == systeme::Lancement::SansMemoire) return kManqueDeMemoire;
    return "Le programme " + programme + " n'a pas pu être lancé" + raison(issue);
}

}  // namespace view
