#include "platform/dao/Jointure.h"

#include "platform/dao/CleJet.h"

#include <algorithm>
#include <bit>

namespace dao::interne {

Partenaires::Partenaires(const Par<RangLigne, std::uint64_t>& hachages)
    : m_places(std::bit_ceil(hachages.size() + hachages.size() / 2 + 2)) {
    for (const RangLigne ligne : hachages.rangs()) {
        std::size_t rang = hachages[ligne] & masque();
        while (m_places[rang].ligne != kSansLigne)
            rang = (rang + 1) & masque();
        m_places[rang] = {static_cast<std::uint32_t>(hachages[ligne] >> 32), ligne};
    }
}

void ClesDeLigne::change(const Par<RangLu, ValeurVue>& valeurs) {
    m_valeurs = &valeurs;
    std::fill(m_faites.begin(), m_faites.end(), false);
}

const std::string& ClesDeLigne::cle(RangLu rang) {
    if (!m_faites[rang]) {
        m_cles[rang].clear();
        ajouteCleJet(texteDe((*m_valeurs)[rang], m_tampon), m_cles[rang]);
        m_faites[rang] = true;
    }
    return m_cles[rang];
}

}  // namespace dao::interne
