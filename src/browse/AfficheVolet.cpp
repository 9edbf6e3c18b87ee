#include "browse/AfficheVolet.h"

namespace browse {

void AfficheVolet::operator()(int mode) {
    if (!m_fiche.cmdGeneralites.Visible) mode = kVoletLesDeux;
    const bool autresInfos = mode == kVoletAutresInfos || mode == kVoletLesDeux;
    const bool generalites = mode == kVoletGeneralites || mode == kVoletLesDeux;
    for (ecran::Cadre& cadre : m_fiche.frameAutresInfos)
        cadre.Visible = autresInfos;
    for (ecran::Cadre& cadre : m_fiche.frameGeneralites)
        cadre.Visible = generalites;
    if (autresInfos) m_demandes.boutonParDefaut = "cmdAutresInfos";
    m_fiche.cmdGeneralites.FontBold = generalites;
    m_fiche.cmdAutresInfos.FontBold = !generalites;
    if (m_fiche.Image1.vide) m_chargeAffiche();
}

}  // namespace browse
