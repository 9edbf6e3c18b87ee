#include "view/Visionneuse.h"

#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/Horloge.h"
#include "util/Nombres.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace view {

namespace {

constexpr int kMarge = 500;      // twips beside the picture
constexpr int kMargeBarre = 90;  // right of the scroll bar
constexpr int kLargeurMinBarre = 100;
constexpr int kPourCent = 100;

constexpr int kZooms[] = {25, 33, 50, 67, 80, 100, 125, 150, 200, 300, 400};

int zoomVoisin(int zoom, int crans) {
    const auto ici = std::ranges::lower_bound(kZooms, zoom) - std::begin(kZooms);
    const auto dernier = std::ssize(kZooms) - 1;
    return kZooms[std::clamp<std::ptrdiff_t>(ici + crans, 0, dernier)];
}

std::string texteOctets(std::int64_t octets) {
    constexpr double kKo = 1024, kMo = kKo * kKo;
    const auto nombre = static_cast<double>(octets);
    if (nombre < kKo) return util::phraseCompte(static_cast<long>(octets), "# octet", "# octets");
    if (nombre < kMo) return std::to_string(std::lround(nombre / kKo)) + " Ko";
    return util::texteDuNombre(std::round(nombre / kMo * 10) / 10, systeme::separateurDecimal()) + " Mo";
}

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
    m_etat.zoom = kPourCent;
    if (!taille) {
        m_etat.lblTaille.Caption =
            fichiers::existe(m_chemins.afficheTmp) ? "Image illisible ou trop grande" : "Pas d'image";
        return;
    }
    m_taille = *taille;
    m_octets = fichiers::longueur(m_chemins.afficheTmp);
    metLaTaille();
    dimensionne();
}

void Visionneuse::metLaTaille() {
    m_etat.Picture1.Width = m_taille.largeur * m_etat.zoom / kPourCent * kTwipsParPixel;
    m_etat.Picture1.Height = m_taille.hauteur * m_etat.zoom / kPourCent * kTwipsParPixel;
    m_etat.lblTaille.Caption = texteTaille(m_taille, m_octets, m_etat.zoom);
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
    metLaPage();
    centre();
}

// A page of the bar is what the window shows.
void Visionneuse::metLaPage() {
    BarreDefilement& barre = m_etat.HScroll1;
    const int vu = m_etat.ScaleHeight - 2 * barre.Height;
    if (m_etat.Picture1.Height > 0)
        barre.LargeChange = std::clamp(vu * kPourCent / m_etat.Picture1.Height, barre.SmallChange, kPourCent);
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

void Visionneuse::zoome(int crans, int x, int y) {
    ecran::Image& image = m_etat.Picture1;
    const int zoom = crans == 0 ? kPourCent : zoomVoisin(m_etat.zoom, crans);
    if (image.vide || zoom == m_etat.zoom) return;
    const double rapport = static_cast<double>(zoom) / m_etat.zoom;
    const int gauche = x - util::arrondiPair((x - image.Left) * rapport);
    const int haut = y - util::arrondiPair((y - image.Top) * rapport);
    m_etat.zoom = zoom;
    metLaTaille();
    metLaPage();
    centre();
    const int bas = m_etat.ScaleHeight - m_etat.HScroll1.Height - image.Height;
    retient(gauche, haut, std::min(bas, m_etat.HScroll1.Height));
}

void Visionneuse::deplace(int dx, int dy) {
    const ecran::Image& image = m_etat.Picture1;
    const int plafond = m_etat.HScroll1.Height;
    if (image.vide) return;
    const int bas = m_etat.ScaleHeight - plafond - image.Height;
    // The bar may have gone further.
    retient(image.Left + dx, image.Top + dy, std::min({image.Top, bas, plafond}));
}

// The picture goes there as far as there is something to uncover, and the bar follows.
void Visionneuse::retient(int gauche, int haut, int plusHaut) {
    ecran::Image& image = m_etat.Picture1;
    BarreDefilement& barre = m_etat.HScroll1;
    image.Top = std::clamp(haut, plusHaut, barre.Height);
    const double part = static_cast<double>(barre.Height - image.Top) * kPourCent / image.Height;
    barre.Value = std::clamp(util::arrondiPair(part), 0, kPourCent);
    const int debord = m_etat.ScaleWidth - image.Width;
    if (debord < 0) image.Left = std::clamp(gauche, debord, 0);
}

std::string texteTaille(const ecran::TailleImage& taille, std::int64_t octets, int zoom) {
    std::string texte = std::to_string(taille.largeur) + " × " + std::to_string(taille.hauteur) + " pixels";
    if (octets > 0) texte += " · " + texteOctets(octets);
    if (zoom != kPourCent) texte += " · " + std::to_string(zoom) + " %";
    return texte;
}

}  // namespace view
