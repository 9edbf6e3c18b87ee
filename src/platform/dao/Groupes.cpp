#include "platform/dao/Groupes.h"

#include "platform/dao/CleJet.h"
#include "platform/dao/Ordre.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace dao::interne {

namespace {

// Of a short text: its length and its ends tell most values of one column apart.
std::size_t place(std::string_view texte, std::size_t places) {
    std::uint64_t debut = 0, fin = 0;
    const std::size_t octets = std::min(texte.size(), sizeof debut);
    if (octets == 0) return 0;
    std::memcpy(&debut, texte.data(), octets);
    std::memcpy(&fin, texte.data() + texte.size() - octets, octets);
    return ((debut * 3 + fin + texte.size()) * 0x9e3779b97f4a7c15ULL >> 40) % places;
}

}  // namespace

std::uint32_t Groupes::numero(std::string_view texte) {
    std::uint32_t& recent = m_recents[place(texte, m_recents.size())];
    if (recent == kNul || m_connus.nom(recent - 1) != texte) recent = m_connus.rang(texte) + 1;
    return recent;
}

void Groupes::ajouteNombre(double nombre) {
    m_clesPretes = true;
    std::array<char, kTailleDeNombre> cle{};
    m_numeros.push_back(numero(cleDeNombre(nombre, cle)));
}

// By number, the rank of each group; values that Jet holds for equal have one.
std::vector<std::uint32_t> Groupes::ordreDesGroupes(std::uint32_t& nombre, const Souffle& souffle) {
    const auto groupes = static_cast<std::uint32_t>(m_connus.taille());
    Ordre cles;
    cles.ajoute({});  // of Null
    std::string cle;
    for (std::uint32_t rang = 0; rang < groupes; ++rang) {
        cle.clear();
        if (m_clesPretes) {
            cle = m_connus.nom(rang);
        } else {
            ajouteCleJet(m_connus.nom(rang), cle);
        }
        cles.ajoute(cle);
    }
    std::vector<std::uint32_t> ordre(groupes + std::size_t{1});
    nombre = 0;
    std::uint32_t precedent = kNul;
    for (const std::uint32_t numero : cles.rangs(std::less<>(), souffle)) {
        if (cles.cle(numero) != cles.cle(precedent)) ++nombre;
        ordre[precedent = numero] = nombre;
    }
    ++nombre;
    return ordre;
}

std::vector<std::uint32_t> Groupes::places(std::vector<std::uint32_t>& fins, const Souffle& souffle) {
    std::uint32_t nombre = 0;
    const std::vector<std::uint32_t> ordre = ordreDesGroupes(nombre, souffle);
    fins.assign(nombre, 0);
    for (std::uint32_t& numero : m_numeros)
        ++fins[numero = ordre[numero]];
    std::uint32_t debut = 0;
    for (std::uint32_t& fin : fins)
        debut += std::exchange(fin, debut);  // where the group begins; as many steps further, where it ends
    std::vector<std::uint32_t> places;
    places.reserve(m_numeros.size());
    for (const std::uint32_t numero : m_numeros)
        places.push_back(fins[numero]++);
    *this = {};
    return places;
}

}  // namespace dao::interne
