#include "view/TouchesAffiche.h"

#include "browse/AfficheFiche.h"

#include <algorithm>

namespace view {

namespace {

constexpr int kEchap = 27, kPagePrecedente = 33, kPageSuivante = 34, kFlecheBas = 40, kF1 = 112;

// The chosen node moves only when there is a title to show: at either end it stays the one of the sheet.
void montreTitre(const Contexte& c, int indice) {
    c.liste.TreeView1.SelectedItem = indice;
    c.liste.noeudChoisi = indice;
    browse::AfficheFiche(c);
    if (c.film.estUnFilm()) c.visionneuse.montre();  // it may have been deleted meanwhile
}

void titreSuivant(const Contexte& c) {
    c.visionneuse.cache();
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    int indice = std::max(c.liste.noeudChoisi, 0) + 1;  // none chosen: from the top
    while (indice <= arbre.Count() && arbre.estGroupe(indice))
        ++indice;
    if (indice <= arbre.Count()) montreTitre(c, indice);
}

void titrePrecedent(const Contexte& c) {
    c.visionneuse.cache();
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    int indice = std::min(c.liste.noeudChoisi, arbre.Count() + 1) - 1;
    while (indice >= 1 && arbre.estGroupe(indice))
        --indice;
    if (indice >= 1) montreTitre(c, indice);
}

}  // namespace

void Image1_Click(const Contexte& c) {
    if (!c.fiche.Image1.vide) c.visionneuse.montre();
}

void Picture1_Click(const Contexte& c) {
    c.visionneuse.cache();
}

void Picture1_KeyDown(const Contexte& c, int code) {
    if (code == kF1) c.visionneuse.cache();
    if (code >= kPagePrecedente && code <= kFlecheBas) c.demandes.focus = "HScroll1";
    HScroll1_KeyDown(c, code);
}

void HScroll1_KeyDown(const Contexte& c, int code) {
    if (code == kPageSuivante) titreSuivant(c);
    if (code == kPagePrecedente) titrePrecedent(c);
}

void HScroll1_Change(const Contexte& c) {
    c.visionneuse.HScroll1_Change();
}

void frmAffiche_KeyDown(const Contexte& c, int code) {
    if (code == kF1 || code == kEchap) c.visionneuse.cache();
}

void frmAffiche_Resize(const Contexte& c, int largeur, int hauteur) {
    c.visionneuse.Form_Resize(largeur, hauteur);
}

void deplaceAffiche(const Contexte& c, int dx, int dy) {
    c.visionneuse.deplace(dx, dy);
}

}  // namespace view
