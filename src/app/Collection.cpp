#include "app/Collection.h"

#include "app/Commandes.h"
#include "browse/ListeVide.h"
#include "browse/SelectionneTitre.h"
#include "browse/TreeView1.h"

namespace app {

namespace {

// 0, with a notice, where it is gone.
int noeudAMontrer(const Contexte& c, const db::CleFilm& film) {
    int noeud = browse::noeudDuFilm(c, film);
    if (noeud == 0) {
        browse::cmdTousLesFilms_Click(c);
        noeud = browse::noeudDuFilm(c, film);
    }
    if (noeud == 0) c.avis.montre("« " + film.titre + " » n'est plus dans la base.");
    return noeud;
}

}  // namespace

void cmdCollection_Click(const Contexte& c) {
    c.panneaux.montre(c.panneaux.frameCollection);
    if (c.etats.collection.page == PageDeCollection::Affiches) c.demandes.focus = "MurDAffiches";
}

void OngletCollection_Click(const Contexte& c, PageDeCollection page) {
    c.etats.collection.page = page;
    cmdCollection_Click(c);
}

void montreLeFilm(const Contexte& c, db::CleFilm film) {
    if (const int noeud = noeudAMontrer(c, film); noeud != 0) browse::TreeView1_NodeClick(c, noeud);
}

void menuDuFilm(const Contexte& c, db::CleFilm film) {
    if (const int noeud = noeudAMontrer(c, film); noeud != 0) TreeView1_MouseUpDroit(c, noeud);
}

}  // namespace app
