#include "browse/TreeView1.h"

namespace browse {

namespace {

bool existe(const Arbre& arbre, int indice) {
    return indice >= 1 && indice <= arbre.Count();
}

}  // namespace

void TreeView1::NodeClick(int indice) {
    if (!existe(m_liste.TreeView1.Nodes, indice)) return;
    m_liste.TreeView1.SelectedItem = indice;
    m_liste.noeudChoisi = indice;
    m_liste.cleCliquee = m_liste.TreeView1.Nodes.Key(indice);
    m_afficheFiche();
}

void TreeView1::NodeCheck(int indice, bool coche) {
    VueArbre& vue = m_liste.TreeView1;
    if (!existe(vue.Nodes, indice)) return;
    vue.coches.erase(indice);
    if (!coche) return;
    if (vue.Nodes.estGroupe(indice))
        m_dialogues.MsgBox("Choisissez un titre plutôt qu'une catégorie.", dialogues::kExclamation);
    else
        vue.coches.insert(indice);
}

MenuArbre TreeView1::MouseUp(int indice) {
    if (indice != m_liste.noeudChoisi) NodeClick(indice);
    const VueArbre& vue = m_liste.TreeView1;
    if (!existe(vue.Nodes, vue.SelectedItem) || m_liste.noeudChoisi < 0) return MenuArbre::Aucun;
    m_liste.cleCliquee = vue.Nodes.Key(vue.SelectedItem);
    if (!vue.Nodes.estGroupe(vue.SelectedItem)) return MenuArbre::Film;
    if (m_liste.triDeLArbre == kTriSupport) return MenuArbre::Support;
    return m_liste.triDeLArbre == kTriGenre ? MenuArbre::Genre : MenuArbre::Aucun;
}

}  // namespace browse
