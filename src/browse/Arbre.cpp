#include "browse/Arbre.h"

#include <utility>

namespace browse {

void Arbre::Clear() {
    m_noeuds.clear();
    m_groupes.clear();
    m_racine.clear();
    m_titres.clear();
    ++m_generation;
    ++m_remplissages;
}

void Arbre::reserve(std::size_t films, std::size_t octetsDeTexte) {
    m_noeuds.reserve(films);
    m_titres.reserve(octetsDeTexte);
}

int Arbre::ajouteGroupe(std::string cle, std::string texte) {
    const auto rangDuTexte = static_cast<std::uint32_t>(m_groupes.size());
    const std::size_t taille = texte.size();
    m_groupes.push_back({std::move(cle), std::move(texte), taille, {}});
    return ajoute({.texte = rangDuTexte}, m_racine);
}

int Arbre::ajouteFilm(int groupe, std::uint32_t position, std::string_view titre) {
    const auto debut = static_cast<std::uint32_t>(m_titres.size());
    m_titres += titre;
    return ajoute({.position = position, .parent = groupe, .texte = debut}, enfantsDe(groupe));
}

int Arbre::ajoute(const Noeud& nouveau, std::vector<std::int32_t>& freres) {
    m_noeuds.push_back(nouveau);
    m_noeuds.back().rang = static_cast<std::int32_t>(freres.size());
    freres.push_back(Count());
    return Count();
}

void Arbre::retire(int indice) {
    const Noeud parti = noeud(indice);
    const auto octets = static_cast<std::uint32_t>(Text(indice).size());
    m_titres.erase(parti.texte, octets);
    std::vector<std::int32_t>& freres = enfantsDe(parti.parent);
    freres.erase(freres.begin() + parti.rang);
    for (auto suivant = freres.begin() + parti.rang; suivant != freres.end(); ++suivant)
        --noeud(*suivant).rang;

    m_noeuds.erase(m_noeuds.begin() + (indice - 1));
    for (int suivant = indice; suivant <= Count(); ++suivant) {
        Noeud& decale = noeud(suivant);
        if (decale.position != 0) decale.texte -= octets;
        if (decale.parent > indice) --decale.parent;
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
