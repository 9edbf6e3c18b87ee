#include "browse/cmdFonctionRecherche_Click.h"

namespace browse {

void cmdFonctionRecherche_Click::operator()() {
    m_afficheAccueil();
    m_panneaux.montre(m_panneaux.frameRecherche);
    m_demandes.focus = "Text2";
    m_demandes.boutonParDefaut = "cmdRecherche";
}

}  // namespace browse
