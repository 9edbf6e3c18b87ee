#include "browse/AfficheNbTitres.h"

#include "util/Nombres.h"

namespace browse {

void AfficheNbTitres(const Contexte& c) {
    c.liste.Label9[0].Caption = util::phraseCompte(c.base.films.RecordCount(), "# titre", "# titres");
    c.liste.Label9[1].Caption = util::phraseCompte(c.base.personnel.RecordCount(), "# personnel", "# personnels");
}

}  // namespace browse
