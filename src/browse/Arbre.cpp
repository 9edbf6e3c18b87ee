#include "browse/Arbre.h"

#include <utility>

namespace browse {

void Arbre::Clear() {
    m_noeuds.clear();
    m_groupes.clear();
    m_racine.clear();
    m_titres.clear();
    ++m_generation;
}

void Arbre::reserve(std::size_t films, std::size_t octetsDeTexte) {
    m_noeuds.reserve(films);
    m_titres.reserve(octetsDeTexte);
}

int Arbre::ajouteGroupe(std::string cle, std::string texte) {
    Noeud nouveau;
    nouveau.rang = static_cast<std::uint32_t>(m_racine.size());
    nouveau.texte = static_cast<std::uint32_t>(m_groupes.size());
    const std::size_t taille = texte.size();
    m_groupes.push_back({std::move(cle), std::move(texte), taille, {}});
    m_noeuds.push_back(nouveau);
    m_racine.push_back(Count());
    return Count();
}

int Arbre::ajouteFilm(int groupe, std::uint32_t position, std::string_view titre) {
    std::vector<std::int32_t>& freres = enfantsDe(groupe);
    Noeud nouveau;
    nouveau.position = position;
    nouveau.parent = static_cast<std::uint32_t>(groupe);
    nouveau.rang = static_cast<std::uint32_t>(freres.size());
    nouveau.texte = static_cast<std::uint32_t>(m_titres.size());
    m_titres += titre;
    m_noeuds.push_back(nouveau);
    freres.push_back(Count());
    return Count();
}

void Arbre::retire(int indice) {
    const Noeud parti = noeud(indice);
    const auto octets = static_cast<std::uint32_t>(Text(indice).size());
    m_titres.erase(parti.texte, octets);
    std::vector<std::int32_t>& freres = enfantsDe(static_cast<int>(parti.parent));
    freres.erase(freres.begin() + parti.rang);
    for (std::size_t rang = parti.rang; rang < freres.size(); ++rang)
        --m_noeuds[static_cast<std::size_t>(freres[rang] - 1)].rang;

    m_noeuds.erase(m_noeuds.begin() + (indice - 1));
    for (std::size_t i = static_cast<std::size_t>(indice - 1); i < m_noeuds.size(); ++i) {
        if (m_noeuds[i].position != 0) m_noeuds[i].texte -= octets;
        if (static_cast<int>(m_noeuds[i].parent) > indice) --m_noeuds[i].parent;
    }
    const auto remonte = [indice](std::vector<std::int32_t>& indices) {
        for (std::int32_t& autre : indices)
            if (autre > indice) --autre;
    };
    remonte(m_racine);
    for (Groupe& groupe : m_groupes)
        remonte(groupe.enfants);
    ++m_generation;
}

std::string Arbre::Key(int indice) const {
    if (estGroupe(indice)) return m_groupes[noeud(indice).texte].cle;
    return "K" + std::to_string(noeud(indice).position);
}

std::string_view Arbre::Text(int indice) const {
    const Noeud& choisi = noeud(indice);
    if (estGroupe(indice)) return m_groupes[choisi.texte].texte;
    int suivant = indice + 1;  // the next film's title begins where this one's ends
    while (suivant <= Count() && estGroupe(suivant))
        ++suivant;
    const std::size_t fin = suivant <= Count() ? noeud(suivant).texte : m_titres.size();
    return std::string_view(m_titres).substr(choisi.texte, fin - choisi.texte);
}

void Arbre::changeSuiteGroupe(int indice, std::string_view suite) {
    Groupe& groupe = m_groupes[noeud(indice).texte];
    groupe.texte.replace(groupe.taille, std::string::npos, suite);
    ++m_versionDesTextes;
}

std::string_view Arbre::texteDuGroupe(int indice) const {
    const Groupe& groupe = m_groupes[noeud(indice).texte];
    return std::string_view(groupe.texte).substr(0, groupe.taille);
}

const std::vector<std::int32_t>& Arbre::enfants(int indice) const {
    return indice == 0 ? m_racine : m_groupes[noeud(indice).texte].enfants;
}

std::vector<std::int32_t>& Arbre::enfantsDe(int indice) {
    return indice == 0 ? m_racine : m_groupes[noeud(indice).texte].enfants;
}

int Arbre::noeudDuFilm(std::uint32_t position) const {
    for (int i = 1; i <= Count(); ++i)
        if (!estGroupe(i) && noeud(i).position == position) return i;
    return 0;
}

}  // namespace browse
