#include "platform/dao/Magasin.h"

#include <cstring>
#include <vector>

namespace dao::interne {

namespace {

constexpr int kBitsDePosition = 30;
constexpr std::uint32_t kMasque = (1U << kBitsDePosition) - 1;
constexpr std::size_t kTexteMax = 4096;            // a title is never so long; what is stays in the base
constexpr auto kAbsent = ValeurVue::Type::Nombre;  // no value is kept as a number

}  // namespace

RangLigne Magasin::ajoute(long long id) {
    m_ids.push_back(id);
    return static_cast<RangLigne>(m_ids.size() - 1);
}

void Magasin::ajouteValeur(const ValeurVue& valeur) {
    std::string tampon;
    const std::string_view texte = texteDe(valeur, tampon);
    const bool tient = texte.size() <= kTexteMax && m_caracteres.size() + texte.size() <= kMasque;
    if (tient) m_caracteres.ajoute(texte);
    const auto type = valeur.type == ValeurVue::Type::Nombre ? ValeurVue::Type::Octets : valeur.type;
    const auto marque = static_cast<std::uint32_t>(tient ? type : kAbsent) << kBitsDePosition;
    m_fins.push_back(marque | static_cast<std::uint32_t>(m_caracteres.size()));
}

void Magasin::serre() {
    m_ids.serre();
    m_fins.serre();
    m_caracteres.serre();
}

void Magasin::oublieLesValeurs() {
    m_fins = {};
    m_caracteres = {};
}

// The others move down where they stand.
void Magasin::oublie(std::span<const RangLu> colonnes) {
    std::vector<bool> oubliees(m_colonnes, false);
    for (const RangLu colonne : colonnes)
        oubliees[static_cast<std::size_t>(colonne)] = true;
    std::uint32_t debut = 0, garde = 0;
    for (std::size_t rang = 0; rang < m_fins.size(); ++rang) {
        const std::uint32_t fin = m_fins[rang] & kMasque;
        std::uint32_t marque = m_fins[rang] & ~kMasque;
        if (oubliees[rang % m_colonnes] && fin > debut) {
            marque = static_cast<std::uint32_t>(kAbsent) << kBitsDePosition;
        } else if (fin > debut) {
            std::memmove(m_caracteres.begin() + garde, m_caracteres.begin() + debut, fin - debut);
            garde += fin - debut;
        }
        m_fins[rang] = marque | garde;
        debut = fin;
    }
    m_caracteres.retireLaFin(garde);
    m_caracteres.serre();
}

std::optional<ValeurVue> Magasin::valeur(RangLigne ligne, RangLu colonne) const {
    const std::size_t rang = static_cast<std::size_t>(ligne) * m_colonnes + static_cast<std::size_t>(colonne);
    if (rang >= m_fins.size()) return std::nullopt;
    const std::uint32_t debut = rang == 0 ? 0 : m_fins[rang - 1] & kMasque;
    const std::uint32_t fin = m_fins[rang] & kMasque;
    const auto type = static_cast<ValeurVue::Type>(m_fins[rang] >> kBitsDePosition);
    if (type == kAbsent) return std::nullopt;
    return ValeurVue{type, std::string_view(m_caracteres.begin() + debut, fin - debut), 0};
}

}  // namespace dao::interne
