#include "browse/ChargeAffiche.h"

#include "browse/AfficheTemporaire.h"
#include "util/Nombres.h"

#include <algorithm>

namespace browse {

namespace {

void place(ecran::Image& image, const ecran::TailleImage& taille) {
    const double largeur = taille.largeur, hauteur = taille.hauteur;
    image.Width = std::min(kLargeurAffiche, util::arrondiPair(largeur / (hauteur / kHauteurAffiche)));
    image.Height = std::min(kHauteurAffiche, util::arrondiPair(hauteur / (largeur / kLargeurAffiche)));
    image.Left = (kLargeurAffiche - image.Width) / 2;
    image.Top = (kHauteurAffiche - image.Height) / 2;
    image.vide = false;
    image.Visible = true;
    ++image.numero;
}

}  // namespace

void ChargeAffiche(const Contexte& c) {
    ecran::Etiquette& statut = c.fiche.Label12;
    statut.Caption = "Chargement de l'image...";
    statut.Visible = true;
    c.ecran.rafraichit();
    const auto octets = litAfficheTemporaire(c);
    auto taille = c.images.charge(octets.value_or(""));
    if (taille && (taille->largeur <= 0 || taille->hauteur <= 0)) taille.reset();
    if (taille) {
        place(c.fiche.Image1, *taille);
        statut.Visible = false;
    } else {
        statut.Caption = octets ? kImageIllisible : c.film.afficheAttendue ? kImageNonMontree : kPasDImage;
        c.fiche.Image1.Visible = false;
    }
    c.fiche.cmdAjouterAffiche.Visible = !taille && statut.Caption != kImageNonMontree;
    c.fiche.cmdAjouterAffiche.Caption = octets ? "Remplacer l'affiche…" : "Ajouter une affiche…";
    if (c.suiviAffiche) c.suiviAffiche->afficheChargee(taille);
}

}  // namespace browse
