#include "view/TouchesAffiche.h"

#include "browse/AfficheFiche.h"

#include <algorithm>

namespace view {

namespace {

constexpr int kEchap = 27, kPagePrecedente = 33, kPageSuivante = 34, kFlecheGauche = 37, kFlecheDroite = 39,
              kFlecheBas = 40, kF1 = 112;

// The chosen node moves only when there is a title to show: at either end it stays the one of the sheet.
void montreTitre(const Contexte& c, int indice) {
    c.liste.TreeView1.SelectedItem = indice;
    c.liste.noeudChoisi = indice;
    browse::AfficheFiche(c);
    if (c.film.estUnFilm()) c.visionneuse.montre();  // it may have been deleted meanwhile
}

// The title below or above the chosen one, headings and what the tree hides passed over; 0 at either end.
int titreVoisin(const Contexte& c, int pas) {
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    const auto estPasse = [&](int indice) { return arbre.estGroupe(indice) || (c.estVu && !c.estVu(indice)); };
    int indice = std::clamp(c.liste.noeudChoisi, 0, arbre.Count() + 1) + pas;  // none chosen: from the top
    while (indice >= 1 && indice <= arbre.Count() && estPasse(indice))
        indice += pas;
    return indice >= 1 && indice <= arbre.Count() ? indice : 0;
}

void changeDeTitre(const Contexte& c, int pas) {
    c.visionneuse.cache();
    if (const int indice = titreVoisin(c, pas)) montreTitre(c, indice);
}

// Where there is nothing to scroll, the arrows across go from film to film; at either end the last one stays.
bool passeParFleche(const Contexte& c, int code) {
    if ((code != kFlecheGauche && code != kFlecheDroite) || !c.visionneuse.montreTout()) return false;
    const int pas = code == kFlecheDroite ? 1 : -1;
    if (titreVoisin(c, pas) != 0) changeDeTitre(c, pas);
    return true;
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
    if (passeParFleche(c, code)) return;
    if (code >= kPagePrecedente && code <= kFlecheBas) c.demandes.focus = "HScroll1";
    HScroll1_KeyDown(c, code);
}

void HScroll1_KeyDown(const Contexte& c, int code) {
    if (code == kPageSuivante) changeDeTitre(c, 1);
    if (code == kPagePrecedente) changeDeTitre(c, -1);
}

void HScroll1_Change(const Contexte& c) {
    c.visionneuse.HScroll1_Change();
}

void frmAffiche_KeyDown(const Contexte& c, int code) {
    if (c.visionneuse.estVide()) passeParFleche(c, code);
    if (code == kF1 || code == kEchap) c.visionneuse.cache();
}

void frmAffiche_Resize(const Contexte& c, int largeur, int hauteur) {
    c.visionneuse.Form_Resize(largeur, hauteur);
}

void zoomeAffiche(const Contexte& c, int crans, int x, int y) {
    c.visionneuse.zoome(crans, x, y);
}

void deplaceAffiche(const Contexte& c, int dx, int dy) {
    c.visionneuse.deplace(dx, dy);
}

}  // namespace view
