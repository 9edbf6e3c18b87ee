#include "ensemble/PlanDuMur.h"

#include <algorithm>
#include <cstdlib>

namespace ensemble {

namespace {

constexpr int kElargieAuPlus = 3;  // halves of the wished width

}  // namespace

PlanDuMur::PlanDuMur(const std::vector<Section>& sections, const Mesures& mesures) : m_mesures(mesures) {
    const int espace = mesures.espace, tuile = std::max(1, mesures.tuile), largeur = std::max(tuile, mesures.largeur);
    m_colonnes = (largeur + espace) / (tuile + espace);
    m_largeurDeTuile =
        std::min((largeur - (m_colonnes - 1) * espace) / m_colonnes, std::max(1, tuile * kElargieAuPlus / 2));
    m_hauteurDeTuile = m_largeurDeTuile * 3 / 2 + mesures.sousLAffiche;
    m_sections.reserve(sections.size());
    for (const Section& section : sections) {
        Posee posee{.haut = m_hauteur, .premiere = m_tuiles, .entete = section.entete};
        posee.lignes = posee.haut + (section.entete ? mesures.entete : 0);
        posee.montrees = section.uneLigne ? std::min(section.nombre, m_colonnes) : section.nombre;
        m_hauteur = posee.lignes + nombreDeLignes(posee) * hauteurDeLigne();
        m_tuiles += section.nombre;
        m_sections.push_back(posee);
    }
}

std::size_t PlanDuMur::sectionDe(int tuile) const {
    const auto apres = std::upper_bound(m_sections.begin(), m_sections.end(), tuile,
                                        [](int rang, const Posee& section) { return rang < section.premiere; });
    return static_cast<std::size_t>(apres - m_sections.begin()) - 1;
}

// The last one that begins above, or there.
std::size_t PlanDuMur::sectionA(int y) const {
    const auto apres = std::upper_bound(m_sections.begin(), m_sections.end(), y,
                                        [](int haut, const Posee& section) { return haut < section.haut; });
    return apres == m_sections.begin() ? 0 : static_cast<std::size_t>(apres - m_sections.begin()) - 1;
}

PlanDuMur::Place PlanDuMur::place(int tuile) const {
    if (tuile < 0 || tuile >= m_tuiles) return {};
    const Posee& section = m_sections[sectionDe(tuile)];
    const int rang = tuile - section.premiere;
    if (rang >= section.montrees) return {};
    return {rang % m_colonnes * (m_largeurDeTuile + m_mesures.espace),
            section.lignes + rang / m_colonnes * hauteurDeLigne(), m_largeurDeTuile, m_hauteurDeTuile};
}

PlanDuMur::Place PlanDuMur::placeDeLEntete(std::size_t section) const {
    const Posee& posee = m_sections[section];
    return {0, posee.haut, m_mesures.largeur, posee.lignes - posee.haut};
}

int PlanDuMur::tuileA(int x, int y) const {
    if (m_sections.empty() || x < 0 || y < 0) return -1;
    const Posee& section = m_sections[sectionA(y)];
    const int pas = m_largeurDeTuile + m_mesures.espace;
    if (y < section.lignes || x % pas >= m_largeurDeTuile || x / pas >= m_colonnes) return -1;
    const int dansLaSection = y - section.lignes;
    const int rang = dansLaSection / hauteurDeLigne() * m_colonnes + x / pas;
    if (dansLaSection % hauteurDeLigne() >= m_hauteurDeTuile || rang >= section.montrees) return -1;
    return section.premiere + rang;
}

void PlanDuMur::parcours(int haut, int bas, const std::function<void(std::size_t section)>& entete,
                         const std::function<void(int tuile)>& tuile) const {
    for (std::size_t s = m_sections.empty() ? 0 : sectionA(haut); s < m_sections.size(); ++s) {
        const Posee& section = m_sections[s];
        if (section.haut >= bas) return;
        if (section.entete && section.lignes > haut) entete(s);
        const int premiere = std::max(0, haut - section.lignes) / hauteurDeLigne() * m_colonnes;
        const int lignes = std::max(0, bas - section.lignes + hauteurDeLigne() - 1) / hauteurDeLigne();
        for (int rang = premiere; rang < std::min(lignes * m_colonnes, section.montrees); ++rang)
            tuile(section.premiere + rang);
    }
}

std::vector<int> PlanDuMur::voulues(int haut, int bas, bool versLeBas) const {
    const auto entre = [this](int de, int a) {
        std::vector<int> tuiles;
        if (a > de)
            parcours(
                de, a, [](std::size_t) {}, [&](int tuile) { tuiles.push_back(tuile); });
        return tuiles;
    };
    const int page = bas - haut;
    std::vector<int> tuiles = entre(haut, bas);
    std::vector<int> dessous = entre(bas, bas + page), dessus = entre(std::max(0, haut - page), haut);
    std::reverse(dessus.begin(), dessus.end());
    // A line that is partly seen stands on both sides of the edge.
    const auto ajoute = [&](const std::vector<int>& autres) {
        const auto vues = static_cast<std::ptrdiff_t>(enVue(haut, bas));
        for (const int tuile : autres)
            if (std::find(tuiles.begin(), tuiles.begin() + vues, tuile) == tuiles.begin() + vues)
                tuiles.push_back(tuile);
    };
    ajoute(versLeBas ? dessous : dessus);
    ajoute(versLeBas ? dessus : dessous);
    return tuiles;
}

std::size_t PlanDuMur::enVue(int haut, int bas) const {
    std::size_t nombre = 0;
    parcours(
        haut, bas, [](std::size_t) {}, [&](int) { ++nombre; });
    return nombre;
}

int PlanDuMur::voisine(int tuile, bool avant) const {
    for (int autre = tuile + (avant ? -1 : 1); autre >= 0 && autre < m_tuiles; autre += avant ? -1 : 1)
        if (place(autre).largeur > 0) return autre;
    return tuile;
}

// In the same column, or the last tile before it where the line is shorter.
int PlanDuMur::ligneVoisine(int tuile, bool avant) const {
    std::size_t s = sectionDe(tuile);
    const int rang = tuile - m_sections[s].premiere, colonne = rang % m_colonnes;
    int ligne = rang / m_colonnes + (avant ? -1 : 1);
    while (ligne < 0 || ligne >= nombreDeLignes(m_sections[s])) {
        if (avant ? s == 0 : s + 1 == m_sections.size()) return tuile;
        s += avant ? static_cast<std::size_t>(-1) : 1;
        ligne = avant ? nombreDeLignes(m_sections[s]) - 1 : 0;
    }
    return m_sections[s].premiere + std::min(ligne * m_colonnes + colonne, m_sections[s].montrees - 1);
}

// At least a line.
int PlanDuMur::page(int tuile, bool avant, int hauteur) const {
    const int depart = place(tuile).y;
    int ici = ligneVoisine(tuile, avant);
    for (int plus = ligneVoisine(ici, avant); plus != ici; plus = ligneVoisine(ici, avant)) {
        if (std::abs(place(plus).y - depart) > hauteur) break;
        ici = plus;
    }
    return ici;
}

int PlanDuMur::deplace(int tuile, Pas pas, int hauteurDePage) const {
    const int premiere = voisine(-1, false);
    if (m_tuiles == 0) return -1;
    if (place(tuile).largeur == 0) return premiere;
    switch (pas) {
        case Pas::Gauche:
            return voisine(tuile, true);
        case Pas::Droite:
            return voisine(tuile, false);
        case Pas::Haut:
            return ligneVoisine(tuile, true);
        case Pas::Bas:
            return ligneVoisine(tuile, false);
        case Pas::PageHaut:
            return page(tuile, true, hauteurDePage);
        case Pas::PageBas:
            return page(tuile, false, hauteurDePage);
        case Pas::Debut:
            return premiere;
        case Pas::Fin:
            return voisine(m_tuiles, true);
    }
    return tuile;
}

}  // namespace ensemble
