#include "db/CleFilm.h"

#include "platform/dao/Comparaison.h"

namespace db {

bool memeFilm(const CleFilm& gauche, const CleFilm& droite) {
    return dao::egalJet(gauche.titre, droite.titre) && dao::egalJet(gauche.realisateur, droite.realisateur);
}

}  // namespace db
