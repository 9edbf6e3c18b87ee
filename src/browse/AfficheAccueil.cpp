#include "browse/AfficheAccueil.h"

#include "browse/CacheFiche.h"

namespace browse {

void AfficheAccueil::operator()() {
    const bool dejaLa = m_panneaux.framePresentation.Visible;
    CacheFiche(m_panneaux);
    m_panneaux.montre(m_panneaux.framePresentation);
    if (!dejaLa) m_ecran.rafraichit();
}

}  // namespace browse
