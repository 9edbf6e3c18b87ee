#include "browse/RetireNoeud.h"

namespace browse {

void retireNoeud(EtatListe& liste, int indice) {
    VueArbre& vue = liste.TreeView1;
    vue.Nodes.retire(indice);
    std::set<int> coches;
    for (const int coche : vue.coches)
        if (coche != indice) coches.insert(coche > indice ? coche - 1 : coche);
    vue.coches = std::move(coches);
    if (vue.SelectedItem == indice)
        vue.SelectedItem = 0;
    else if (vue.SelectedItem > indice)
        --vue.SelectedItem;
    liste.noeudChoisi = -1;
    liste.cleCliquee.clear();
}

}  // namespace browse
