#include "platform/dao/Magasin.h"

namespace dao::interne {

namespace {

constexpr int kBitsDePosition = 30;
constexpr std::uint32_t kMasque = (1U << kBitsDePosition) - 1;
constexpr std::size_t kTexteMax = 4096;  // a title is never so long; what is stays in the base

}  // namespace

std::uint32_t Magasin::ajoute(long long id) {
    m_ids.push_back(id);
    return static_cast<std::uint32_t>(m_ids.size() - 1);
}

void Magasin::ajouteValeur(const ValeurVue& valeur) {
    if (valeur.estNulle()) return pose(Genre::Nul, {});
    if (valeur.genre == ValeurVue::Genre::Nombre) return pose(Genre::Autre, texteDeNombre(valeur.nombre));
    pose(valeur.estTexte ? Genre::Texte : Genre::Autre, valeur.texte);
}

void Magasin::pose(Genre genre, std::string_view texte) {
    const bool tient = texte.size() <= kTexteMax && m_caracteres.size() + texte.size() <= kMasque;
    if (tient) m_caracteres += texte;
    const auto marque = static_cast<std::uint32_t>(tient ? genre : Genre::Absent) << kBitsDePosition;
    m_fins.push_back(marque | static_cast<std::uint32_t>(m_caracteres.size()));
}

void Magasin::serre() {
    m_ids.shrink_to_fit();
    m_fins.shrink_to_fit();
    m_caracteres.shrink_to_fit();
}

Magasin::Valeur Magasin::valeur(std::uint32_t ligne, std::size_t colonne) const {
    const std::size_t rang = ligne * m_colonnes + colonne;
    const std::uint32_t debut = rang == 0 ? 0 : m_fins[rang - 1] & kMasque;
    const std::uint32_t fin = m_fins[rang] & kMasque;
    return {static_cast<Genre>(m_fins[rang] >> kBitsDePosition),
            std::string_view(m_caracteres).substr(debut, fin - debut)};
}

}  // namespace dao::interne
