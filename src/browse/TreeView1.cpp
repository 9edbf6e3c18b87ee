#include "browse/TreeView1.h"

#include "browse/AfficheFiche.h"

namespace browse {

namespace {

bool existe(const Arbre& arbre, int indice) {
    return indice >= 1 && indice <= arbre.Count();
}

}  // namespace

void TreeView1_NodeClick(const Contexte& c, int indice) {
    VueArbre& vue = c.liste.TreeView1;
    if (!existe(vue.Nodes, indice)) return;
    vue.SelectedItem = indice;
    c.liste.noeudChoisi = indice;
    c.liste.cleCliquee = vue.Nodes.Key(indice);
    AfficheFiche(c);
}

void TreeView1_NodeCheck(const Contexte& c, int indice, bool coche) {
    VueArbre& vue = c.liste.TreeView1;
    if (!existe(vue.Nodes, indice)) return;
    vue.coches.erase(indice);
    if (!coche) return;
    if (vue.Nodes.estGroupe(indice))
        c.dialogues.MsgBox("Choisissez un titre plutôt qu'une catégorie.", dialogues::kExclamation);
    else
        vue.coches.insert(indice);
}

MenuArbre TreeView1_MouseUp(const Contexte& c, int indice) {
    EtatListe& liste = c.liste;
    if (indice != liste.noeudChoisi) TreeView1_NodeClick(c, indice);
    const VueArbre& vue = liste.TreeView1;
    if (!existe(vue.Nodes, vue.SelectedItem) || liste.noeudChoisi < 0) return MenuArbre::Aucun;
    liste.cleCliquee = vue.Nodes.Key(vue.SelectedItem);
    if (!vue.Nodes.estGroupe(vue.SelectedItem)) return MenuArbre::Film;
    if (liste.triDeLArbre == kTriSupport) return MenuArbre::Support;
    return liste.triDeLArbre == kTriGenre ? MenuArbre::Genre : MenuArbre::Aucun;
}

}  // namespace browse
