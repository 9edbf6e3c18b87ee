#include "browse/ChargeAffiche.h"

#include "util/Nombres.h"

#include <algorithm>

namespace browse {

void ChargeAffiche::operator()() {
    m_fiche.Label12.Caption = "Chargement de l'image...";
    m_fiche.Label12.Visible = true;
    m_ecran.rafraichit();
    const auto octets = m_affiche.octets();
    auto taille = m_images.charge(octets.value_or(""));
    if (taille && (taille->largeur <= 0 || taille->hauteur <= 0)) taille.reset();
    if (taille) {
        place(*taille);
        m_fiche.Label12.Visible = false;
    } else {
        m_fiche.Label12.Caption = octets ? kImageIllisible : m_affiche.estAttendue() ? kImageNonMontree : kPasDImage;
        m_fiche.Image1.Visible = false;
    }
    if (m_suivi) m_suivi->afficheChargee(taille);
}

void ChargeAffiche::place(const ecran::TailleImage& taille) {
    ecran::Image& image = m_fiche.Image1;
    const double largeur = taille.largeur, hauteur = taille.hauteur;
    image.Width = std::min(kLargeurAffiche, util::arrondiPair(largeur / (hauteur / kHauteurAffiche)));
    image.Height = std::min(kHauteurAffiche, util::arrondiPair(hauteur / (largeur / kLargeurAffiche)));
    image.Left = (kLargeurAffiche - image.Width) / 2;
    image.Top = (kHauteurAffiche - image.Height) / 2;
    image.vide = false;
    image.Visible = true;
    ++image.numero;
}

}  // namespace browse
