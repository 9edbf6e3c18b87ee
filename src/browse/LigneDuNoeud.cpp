#include "browse/LigneDuNoeud.h"

#include "platform/dao/LigneSupprimee.h"

namespace browse {

void vaSurLaLigne(const Contexte& c, int noeud) {
    c.base.liste.MoveFirst();
    c.base.liste.Move(static_cast<long>(c.liste.TreeView1.Nodes.position(noeud)) - 1);
}

std::optional<db::CleFilm> filmDuNoeud(const Contexte& c, int noeud) {
    vaSurLaLigne(c, noeud);
    std::optional<db::CleFilm> film;
    dao::siPresente([&] { film = {c.base.liste.texte("Titre"), c.base.liste.texte("Realisateur")}; });
    return film;
}

}  // namespace browse
