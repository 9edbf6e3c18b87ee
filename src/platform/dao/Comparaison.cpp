#include "platform/dao/Comparaison.h"

#include "platform/dao/CleJet.h"

namespace dao {

bool egalJet(std::string_view gauche, std::string_view droite) {
    return gauche == droite || interne::cleJet(gauche) == interne::cleJet(droite);
}

std::string cleDeComparaison(std::string_view texte) {
    return interne::cleJet(texte);
}

}  // namespace dao
