#include "platform/dao/Jointure.h"

#include "platform/dao/CleJet.h"

#include <algorithm>
#include <bit>

namespace dao::interne {

Partenaires::Partenaires(const Par<RangLigne, std::uint64_t>& hachages)
    : m_places(std::bit_ceil(hachages.size() + hachages.size() / 4 + 2)), m_accompagnees(hachages.size()) {
    for (const RangLigne ligne : hachages.rangs()) {
        const auto marque = static_cast<std::uint32_t>(hachages[ligne] >> 32);
        std::size_t rang = hachages[ligne] & masque();
        for (; m_places[rang].ligne != kSansLigne; rang = (rang + 1) & masque()) {
            if (m_places[rang].marque != marque) continue;
            for (const RangLigne compagne : {ligne, m_places[rang].ligne})
                m_accompagnees[static_cast<std::size_t>(compagne)] = true;
        }
        m_places[rang] = {marque, ligne};
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
