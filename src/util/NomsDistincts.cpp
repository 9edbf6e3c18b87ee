#include "util/NomsDistincts.h"

#include <functional>

namespace util {

// Where the text stands, or may stand.
NomsDistincts::Place& NomsDistincts::place(std::string_view texte, std::uint32_t hachage) {
    for (std::size_t i = hachage;; ++i) {
        Place& essayee = m_places[i & (m_places.size() - 1)];
        if (essayee.suivant == 0 || (essayee.hachage == hachage && nom(essayee.suivant - 1) == texte)) return essayee;
    }
}

void NomsDistincts::agrandit() {
    std::vector<Place> anciennes(2 * m_places.size());
    anciennes.swap(m_places);
    for (const Place& ancienne : anciennes)
        if (ancienne.suivant > 0) place(nom(ancienne.suivant - 1), ancienne.hachage) = ancienne;
}

std::uint32_t NomsDistincts::rang(std::string_view nom) {
    const auto hachage = static_cast<std::uint32_t>(std::hash<std::string_view>{}(nom));
    Place* ou = &place(nom, hachage);
    if (ou->suivant > 0) return ou->suivant - 1;
    if (2 * (taille() + 1) > m_places.size()) {
        agrandit();
        ou = &place(nom, hachage);
    }
    m_textes += nom;
    m_debuts.push_back(m_textes.size());
    *ou = {hachage, static_cast<std::uint32_t>(taille())};
    return ou->suivant - 1;
}

}  // namespace util
