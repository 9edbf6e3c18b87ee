#include "browse/AfficheVolet.h"

#include "browse/ChargeAffiche.h"

namespace browse {

void AfficheVolet(const Contexte& c, int mode) {
    EtatFiche& fiche = c.fiche;
    if (!fiche.cmdGeneralites.Visible) mode = kVoletLesDeux;
    const bool autresInfos = mode == kVoletAutresInfos || mode == kVoletLesDeux;
    const bool generalites = mode == kVoletGeneralites || mode == kVoletLesDeux;
    for (ecran::Cadre& cadre : fiche.frameAutresInfos)
        cadre.Visible = autresInfos;
    for (ecran::Cadre& cadre : fiche.frameGeneralites)
        cadre.Visible = generalites;
    if (autresInfos) c.demandes.boutonParDefaut = "cmdAutresInfos";
    fiche.cmdGeneralites.FontBold = generalites;
    fiche.cmdAutresInfos.FontBold = !generalites;
    if (fiche.Image1.vide) ChargeAffiche(c);
}

void cmdGeneralites_Click(const Contexte& c) {
    AfficheVolet(c, kVoletGeneralites);
}

void cmdAutresInfos_Click(const Contexte& c) {
    AfficheVolet(c, kVoletAutresInfos);
}

}  // namespace browse
