#include "platform/dao/Jointure.h"

#include "platform/dao/CleJet.h"

#include <algorithm>
#include <bit>

namespace dao::interne {

std::string_view texteDe(const ValeurVue& valeur, std::string& tampon) {
    if (valeur.genre != ValeurVue::Genre::Nombre) return valeur.texte;
    return tampon = texteDeNombre(valeur.nombre);
}

Partenaires::Partenaires(const std::vector<std::uint64_t>& hachages)
    : m_places(std::bit_ceil(hachages.size() + hachages.size() / 2 + 2)) {
    for (std::size_t ligne = 0; ligne < hachages.size(); ++ligne) {
        std::size_t rang = hachages[ligne] & masque();
        while (m_places[rang].ligne != kLibre)
            rang = (rang + 1) & masque();
        m_places[rang] = {static_cast<std::uint32_t>(hachages[ligne] >> 32), static_cast<std::uint32_t>(ligne)};
    }
}

void ClesDeLigne::change(const std::vector<ValeurVue>& valeurs) {
    m_valeurs = &valeurs;
    std::fill(m_faites.begin(), m_faites.end(), false);
}

const std::string& ClesDeLigne::cle(int rang) {
    const auto i = static_cast<std::size_t>(rang);
    if (!m_faites[i]) {
        m_cles[i].clear();
        ajouteCleJet(texteDe((*m_valeurs)[i], m_tampon), m_cles[i]);
        m_faites[i] = true;
    }
    return m_cles[i];
}

}  // namespace dao::interne
