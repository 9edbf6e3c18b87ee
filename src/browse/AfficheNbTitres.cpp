#include "browse/AfficheNbTitres.h"

#include "util/Nombres.h"

namespace browse {

void AfficheNbTitres::operator()() {
    m_liste.Label9[0].Caption = util::phraseCompte(m_base.films.RecordCount(), "# titre", "# titres");
    m_liste.Label9[1].Caption = util::phraseCompte(m_base.personnel.RecordCount(), "# personnel", "# personnels");
}

}  // namespace browse
