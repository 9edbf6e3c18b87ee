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
    std::memcpy(&debut, texte.data(), octets);
    std::memcpy(&fin, texte.data() + texte.size() - octets, octets);
    return ((debut * 3 + fin + texte.size()) * 0x9e3779b97f4a7c15ULL >> 40) % places;
}

}  // namespace

std::uint32_t Groupes::numero(std::string_view texte) {
    Recent& recent = m_recents[place(texte, m_recents.size())];
    if (recent.numero != kNul && recent.texte == texte) return recent.numero;
    auto connu = m_connus.find(texte);
    if (connu == m_connus.end()) connu = m_connus.emplace(texte, static_cast<std::uint32_t>(m_connus.size() + 1)).first;
    recent = {connu->first, connu->second};
    return connu->second;
}

void Groupes::ajouteNombre(double nombre) {
    m_clesPretes = true;
    std::array<char, kTailleDeNombre> cle{};
    m_numeros.push_back(numero(cleDeNombre(nombre, cle)));
}

// By number, the rank of each group; values that Jet holds for equal have one.
std::vector<std::uint32_t> Groupes::ordreDesGroupes(std::uint32_t& nombre) {
    std::vector<std::string_view> textes(m_connus.size() + 1);
    for (const auto& [texte, numero] : m_connus)
        textes[numero] = texte;
    Ordre cles;
    std::string cle;
    for (const std::string_view texte : textes) {
        cle.clear();
        if (m_clesPretes) {
            cle = texte;
        } else if (texte.data() != nullptr) {
            ajouteCleJet(texte, cle);
        }
        cles.ajoute(cle);
    }
    std::vector<std::uint32_t> ordre(textes.size());
    nombre = 0;
    std::uint32_t precedent = kNul;
    for (const std::uint32_t numero : cles.rangs(std::less<>())) {
        if (cles.cle(numero) != cles.cle(precedent)) ++nombre;
        ordre[precedent = numero] = nombre;
    }
    ++nombre;
    return ordre;
}

std::vector<std::uint32_t> Groupes::range(std::span<const std::uint32_t> rangs, std::vector<std::uint32_t>& fins) {
    std::uint32_t nombre = 0;
    const std::vector<std::uint32_t> ordre = ordreDesGroupes(nombre);
    fins.assign(nombre, 0);
    for (std::uint32_t& numero : m_numeros)
        ++fins[numero = ordre[numero]];
    std::uint32_t debut = 0;
    for (std::uint32_t& fin : fins)
        debut += std::exchange(fin, debut);  // where the group begins; as many steps further, where it ends
    std::vector<std::uint32_t> rangees(rangs.size());
    for (const std::uint32_t rang : rangs)
        rangees[fins[m_numeros[rang]]++] = rang;
    *this = {};
    return rangees;
}

}  // namespace dao::interne
