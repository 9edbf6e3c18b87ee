#include "platform/dao/Magasin.h"

#include <string>
#include <utility>

namespace dao::interne {

namespace {

constexpr int kBitsDePosition = 30;
constexpr std::uint32_t kMasque = (1U << kBitsDePosition) - 1;
constexpr std::size_t kTexteMax = 4096;            // a title is never so long; what is stays in the base
constexpr auto kAbsent = ValeurVue::Type::Nombre;  // no value is kept as a number

}  // namespace

void ColonneGardee::ajoute(const ValeurVue& valeur) {
    std::string tampon;
    const std::string_view texte = texteDe(valeur, tampon);
    const bool tient = texte.size() <= kTexteMax && m_caracteres.size() + texte.size() <= kMasque;
    if (tient) m_caracteres.ajoute(texte);
    const auto type = valeur.type == ValeurVue::Type::Nombre ? ValeurVue::Type::Octets : valeur.type;
    const auto marque = static_cast<std::uint32_t>(tient ? type : kAbsent) << kBitsDePosition;
    m_fins.push_back(marque | static_cast<std::uint32_t>(m_caracteres.size()));
}

void ColonneGardee::serre() {
    m_fins.serre();
    m_caracteres.serre();
}

std::optional<ValeurVue> ColonneGardee::valeur(std::size_t rang) const {
    if (rang >= m_fins.size()) return std::nullopt;
    const std::uint32_t debut = rang == 0 ? 0 : m_fins[rang - 1] & kMasque;
    const std::uint32_t fin = m_fins[rang] & kMasque;
    const auto type = static_cast<ValeurVue::Type>(m_fins[rang] >> kBitsDePosition);
    if (type == kAbsent) return std::nullopt;
    return ValeurVue{type, std::string_view(m_caracteres.begin() + debut, fin - debut), 0};
}

Magasin::Magasin(std::size_t colonnes) : m_ids(std::make_shared<Tampon<long long>>()) {
    for (std::size_t i = 0; i < colonnes; ++i)
        m_colonnes.push_back(m_lues.emplace_back(std::make_shared<ColonneGardee>()));
}

Magasin::Magasin(const Magasin& lignes, Par<RangLu, std::shared_ptr<const ColonneGardee>> colonnes)
    : m_ids(lignes.m_ids), m_colonnes(std::move(colonnes)) {}

RangLigne Magasin::ajoute(long long id, const Par<RangLu, ValeurVue>& valeurs) {
    for (const RangLu rang : valeurs.rangs())
        m_lues[rang]->ajoute(valeurs[rang]);
    return ajoute(id);
}

RangLigne Magasin::ajoute(long long id) {
    m_ids->push_back(id);
    return static_cast<RangLigne>(m_ids->size() - 1);
}

void Magasin::serre() {
    m_ids->serre();
    for (const auto& colonne : m_lues)
        colonne->serre();
    m_lues.clear();
}

void Magasin::oublieLesValeurs() {
    for (auto& colonne : m_colonnes)
        colonne = nullptr;
}

}  // namespace dao::interne
