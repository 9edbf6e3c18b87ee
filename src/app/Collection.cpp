#include "app/Collection.h"

#include "browse/ListeVide.h"
#include "browse/SelectionneTitre.h"
#include "browse/TreeView1.h"

namespace app {

void cmdCollection_Click(const Contexte& c) {
    c.panneaux.montre(c.panneaux.frameCollection);
}

void OngletCollection_Click(const Contexte& c, PageDeCollection page) {
    c.etats.collection.page = page;
    cmdCollection_Click(c);
}

void montreLeFilm(const Contexte& c, db::CleFilm film) {
    int noeud = browse::noeudDuFilm(c, film);
    if (noeud == 0) {
        browse::cmdTousLesFilms_Click(c);
        noeud = browse::noeudDuFilm(c, film);
    }
    if (noeud != 0) return browse::TreeView1_NodeClick(c, noeud);
    c.avis.montre("« " + film.titre + " » n'est plus dans la base.");
}

}  // namespace app
