#include "view/TouchesAffiche.h"

#include <algorithm>

namespace view {

namespace {

constexpr int kEchap = 27, kPagePrecedente = 33, kPageSuivante = 34, kFlecheBas = 40, kF1 = 112;

}  // namespace

void TouchesAffiche::Picture1_KeyDown(int code) {
    if (code == kF1) m_visionneuse.cache();
    if (code >= kPagePrecedente && code <= kFlecheBas) m_demandes.focus = "HScroll1";
    HScroll1_KeyDown(code);
}

void TouchesAffiche::HScroll1_KeyDown(int code) {
    if (code == kPageSuivante) titreSuivant();
    if (code == kPagePrecedente) titrePrecedent();
}

void TouchesAffiche::Form_KeyDown(int code) {
    if (code == kF1 || code == kEchap) m_visionneuse.cache();
}

void TouchesAffiche::titreSuivant() {
    m_visionneuse.cache();
    const browse::Arbre& arbre = m_liste.TreeView1.Nodes;
    int indice = std::max(m_liste.noeudChoisi, 0) + 1;  // none chosen: from the top
    while (indice <= arbre.Count() && arbre.estGroupe(indice))
        ++indice;
    if (indice <= arbre.Count()) montreTitre(indice);
}

void TouchesAffiche::titrePrecedent() {
    m_visionneuse.cache();
    const browse::Arbre& arbre = m_liste.TreeView1.Nodes;
    int indice = std::min(m_liste.noeudChoisi, arbre.Count() + 1) - 1;
    while (indice >= 1 && arbre.estGroupe(indice))
        --indice;
    if (indice >= 1) montreTitre(indice);
}

// The chosen node moves only when there is a title to show: at either end it stays the one of the sheet.
void TouchesAffiche::montreTitre(int indice) {
    m_liste.TreeView1.SelectedItem = indice;
    m_liste.noeudChoisi = indice;
    m_afficheFiche();
    if (m_film.estUnFilm()) m_visionneuse.montre();  // it may have been deleted meanwhile
}

}  // namespace view
