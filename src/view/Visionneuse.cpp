#include "view/Visionneuse.h"

#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"

#include <algorithm>
#include <string>

namespace view {

namespace {

constexpr int kMarge = 500;      // twips beside the picture
constexpr int kMargeBarre = 90;  // right of the scroll bar
constexpr int kLargeurMinBarre = 100;
constexpr int kPourCent = 100;

int plafonne(int taille, int ecran) {
    return ecran > 0 ? std::min(taille, ecran) : taille;
}

}  // namespace

void Visionneuse::montre() {
    m_etat.Visible = true;
    ++m_etat.presentations;
}

void Visionneuse::afficheChargee(const std::optional<ecran::TailleImage>& taille) {
    ecran::Image& image = m_etat.Picture1;
    image.vide = !taille;
    image.Visible = taille.has_value();
    ++image.numero;
    if (!taille) {
        m_etat.lblTaille.Caption =
            fichiers::existe(m_chemins.afficheTmp) ? "Image illisible ou trop grande" : "Pas d'image";
        return;
    }
    image.Width = taille->largeur * kTwipsParPixel;
    image.Height = taille->hauteur * kTwipsParPixel;
    m_etat.lblTaille.Caption = std::to_string(taille->largeur) + " × " + std::to_string(taille->hauteur) + " pixels";
    dimensionne();
}

void Visionneuse::dimensionne() {
    BarreDefilement& barre = m_etat.HScroll1;
    m_etat.Width = plafonne(m_etat.Picture1.Width + barre.Left + kMarge, m_etat.largeurEcran);
    m_etat.Height = plafonne(2 * barre.Height + m_etat.Picture1.Height, m_etat.hauteurEcran);
    barre.Value = 0;
    HScroll1_Change();
    Form_Resize(m_etat.Width, m_etat.Height);
}

void Visionneuse::Form_Resize(int largeur, int hauteur) {
    BarreDefilement& barre = m_etat.HScroll1;
    m_etat.ScaleWidth = largeur;
    m_etat.ScaleHeight = hauteur;
    barre.Width = std::max(kLargeurMinBarre, largeur - barre.Left - kMargeBarre);
    if (m_etat.Picture1.Height > 0)
        barre.LargeChange =
            std::clamp((hauteur - 2 * barre.Height) * kPourCent / m_etat.Picture1.Height, barre.SmallChange, kPourCent);
    centre();
}

// A picture wider than the window begins at its left edge, and is dragged from there.
void Visionneuse::centre() {
    m_etat.Picture1.Left = std::max(0, (m_etat.ScaleWidth - m_etat.Picture1.Width) / 2);
}

void Visionneuse::HScroll1_Change() {
    const BarreDefilement& barre = m_etat.HScroll1;
    m_etat.Picture1.Top =
        barre.Height - util::arrondiPair(static_cast<double>(barre.Value) * m_etat.Picture1.Height / kPourCent);
}

void Visionneuse::deplace(int dx, int dy) {
    ecran::Image& image = m_etat.Picture1;
    BarreDefilement& barre = m_etat.HScroll1;
    if (image.vide) return;
    const int bas = m_etat.ScaleHeight - barre.Height - image.Height;
    const int plusHaut = std::min({image.Top, bas, barre.Height});  // the bar may have gone further
    image.Top = std::clamp(image.Top + dy, plusHaut, barre.Height);
    const double part = static_cast<double>(barre.Height - image.Top) * kPourCent / image.Height;
    barre.Value = std::clamp(util::arrondiPair(part), 0, kPourCent);
    const int debord = m_etat.ScaleWidth - image.Width;
    if (debord < 0) image.Left = std::clamp(image.Left + dx, debord, 0);
}

}  // namespace view
