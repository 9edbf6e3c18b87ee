#include "view/TableExtensions.h"

#include "util/Texte.h"

#include <algorithm>
#include <vector>

namespace view {

namespace {

// Cuts a list at its "/" and looks for a token equal to the extension. The cut is the published one, kept to the letter: a
// token that a "/" ends keeps it, and after the first one takes up some of what follows, and a step passes over one more
// character. So a single extension is found, and of several only the last, where a blank follows every "/".
bool donne(std::string_view liste, std::string_view extension) {
    const std::vector<std::string_view> lettres = util::caracteres(liste);
    const auto morceau = [&](std::size_t debut, std::size_t nombre) {
        std::string texte;
        for (std::size_t i = debut; i < std::min(debut + nombre, lettres.size()); ++i)
            texte += lettres[i];
        return texte;
    };
    for (std::size_t position = 1;;) {
        const std::size_t depart = std::min(position - 1, lettres.size());
        const auto ici = lettres.begin() + static_cast<std::ptrdiff_t>(depart);
        const auto barre = std::find(ici, lettres.end(), "/");
        if (barre == lettres.end()) return util::egalSansCasse(morceau(depart, lettres.size()), extension);
        const auto place = static_cast<std::size_t>(barre - ici) + 1;
        if (util::egalSansCasse(morceau(depart, position + place - 1), extension)) return true;
        position += place + 1;
    }
}

}  // namespace

std::size_t TableExtensions::ligneDe(std::string_view extension) const {
    const auto ligne =
        std::find_if(lignes.begin(), lignes.end(), [&](const auto& colonnes) { return donne(colonnes[0], extension); });
    return static_cast<std::size_t>(ligne - lignes.begin());
}

std::string TableExtensions::logiciel(std::string_view extension) const {
    const std::size_t ligne = ligneDe(extension);
    return ligne == kLignes || lignes[ligne][1].empty() ? kLogicielParDefaut : lignes[ligne][1];
}

}  // namespace view
