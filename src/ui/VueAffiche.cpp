#include "ui/VueAffiche.h"

#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Etiquettes.h"
#include "ui/Icones.h"
#include "ui/Lecteur.h"
#include "ui/Traits.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace ui {

namespace {

constexpr QSize kBoite{193, 297};       // 2895 by 4455 twips
constexpr QSize kPlusPetite{176, 150};  // the stars and the button are as wide
constexpr int kMarge = 14;

// The size at which a picture of that size shows in the place.
QSize tenue(const QSize& image, const QSize& place) {
    return image.scaled(place, Qt::KeepAspectRatio).boundedTo(image * VueAffiche::kAgrandissementMax);
}

}  // namespace

class VueAffiche::LienImage final : public Lien {
  public:
    LienImage(ecran::Image& etat, VueAffiche& vue) : m_etat(etat), m_vue(vue) {}

    void ecrit() override {
        if (m_etat == m_montre) return;
        if (m_etat.Visible != m_montre.Visible)
            static_cast<CadreAffiche*>(m_vue.parentWidget())->montreImage(m_etat.Visible);
        m_montre = m_etat;
        m_vue.update();
        m_vue.parentWidget()->update();
    }

  private:
    ecran::Image& m_etat;
    VueAffiche& m_vue;
    ecran::Image m_montre;
};

VueAffiche::VueAffiche(ImagesQt& images, QWidget* parent) : QWidget(parent), m_images(images) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    seLit(this, {.role = QAccessible::Button, .presse = [this] { emit cliquee(); }});
}

std::unique_ptr<Lien> VueAffiche::lien(ecran::Image& etat) {
    return std::make_unique<LienImage>(etat, *this);
}

QSize VueAffiche::pixels() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void VueAffiche::resizeEvent(QResizeEvent*) {
    m_images.metTailleVoulue(pixels());
}

void VueAffiche::paintEvent(QPaintEvent*) {
    if (!m_images.estVide()) {
        const QPixmap& affiche = m_images.affiche(pixels());
        if (affiche.isNull()) return;
        m_derniere = affiche;
        m_placeMontree = tenue(m_images.taille(), size());
    }
    QRect zone(QPoint(), m_placeMontree);
    zone.moveCenter(rect().center());
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    peintre.drawPixmap(zone, m_derniere);
    if (hasFocus()) peintContourDeFocus(peintre, zone, accentLisible(palette()));
}

void VueAffiche::mousePressEvent(QMouseEvent* evenement) {
    evenement->setAccepted(evenement->button() == Qt::LeftButton);
}

void VueAffiche::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->pos())) emit cliquee();
}

void VueAffiche::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    if (touche == Qt::Key_Space || touche == Qt::Key_Return || touche == Qt::Key_Enter)
        emit cliquee();
    else
        QWidget::keyPressEvent(evenement);
}

CadreAffiche::CadreAffiche(ImagesQt& images, QWidget* parent)
    : QWidget(parent),
      m_images(images),
      m_image(new VueAffiche(images, this)),
      m_titre((new Etiquette({}, this))->avecLignes(4)),
      m_realisateur((new Etiquette({}, this))->avecTon(Ton::Discret)->avecLignes(2)),
      m_statut((new Etiquette({}, this))->avecTon(Ton::Discret)->avecPolice(0.9)->avecLignes(3)),
      m_ajouter(new QPushButton(this)) {
    m_statut->setAlignment(Qt::AlignCenter);
    for (Etiquette* nom : {m_titre, m_realisateur})
        nom->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_statut->setCursor(Qt::PointingHandCursor);
    m_ajouter->setFocusPolicy(Qt::NoFocus);  // the frame is the one stop of the keys
    connect(m_ajouter, &QPushButton::clicked, this, &CadreAffiche::statutClique);
    setFixedSize(kBoite);
}

// Without a picture the keys press the button from the frame, and go on to the picture.
void CadreAffiche::montreImage(bool visible) {
    m_image->setVisible(visible);
    m_titre->setVisible(!visible);
    m_realisateur->setVisible(!visible);
    setFocusPolicy(visible ? Qt::NoFocus : Qt::TabFocus);
    setFocusProxy(visible ? m_image : nullptr);
    if (visible)
        seLit(this, {.role = QAccessible::Grouping, .nom = [] { return tr("Affiche"); }});
    else
        seLit(this, {.role = QAccessible::Button, .presse = [this] { emit statutClique(); }});
}

void CadreAffiche::metNoms(const QString& titre, const QString& realisateur) {
    if (titre == m_titre->text() && realisateur == m_realisateur->text()) return;
    m_titre->setText(titre);
    m_realisateur->setText(realisateur);
    m_image->setAccessibleName(tr("Affiche de « %1 »").arg(titre));
    setAccessibleName(tr("Pas d'affiche pour « %1 » : en ajouter une").arg(titre));
    composeDessin();
}

// The button's text comes, and goes, after the frame had its size.
bool CadreAffiche::event(QEvent* evenement) {
    if (evenement->type() == QEvent::LayoutRequest) composeDessin();
    return QWidget::event(evenement);
}

// From the top the names, from the bottom the button and the caption, and the drawing in what they leave.
void CadreAffiche::composeDessin() {
    const int largeur = width() - 2 * kMarge;
    const QSize bouton = m_ajouter->sizeHint();
    const int largeBouton = std::min(bouton.width(), largeur);
    const int hautStatut = m_statut->fontMetrics().lineSpacing() * 5 / 2;
    int bas = height() - kMarge - bouton.height();
    m_ajouter->setGeometry((width() - largeBouton) / 2, bas, largeBouton, bouton.height());
    bas -= kPetit + hautStatut;
    m_statut->setGeometry(kMarge, bas, largeur, hautStatut);

    const int place = bas - kMarge - kPetit;  // of the names and the drawing
    m_titre->setFont(policeRelative(std::clamp(width() / 150.0, 1.1, 1.9), QFont::DemiBold));
    int haut = kMarge + kPetit;
    for (Etiquette* nom : {m_titre, m_realisateur}) {
        const int hauteur = std::min(nom->heightForWidth(largeur), haut + place / 2 - kMarge);
        nom->setGeometry(kMarge, haut, largeur, std::max(0, hauteur));
        haut += std::max(0, hauteur) + kSerre;
    }
    const double cote = std::min({width() * 0.42, bas - haut - 2.0 * kPetit, 110.0});
    m_clap = QRectF((width() - cote) / 2, (haut + bas - cote) / 2, cote, cote);
    update();
}

void CadreAffiche::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    const bool presse = touche == Qt::Key_Space || touche == Qt::Key_Return || touche == Qt::Key_Enter;
    if (presse && !m_statut->isHidden())
        emit statutClique();
    else
        QWidget::keyPressEvent(evenement);
}

void CadreAffiche::tiensDans(const QSize& place) {
    const bool enImage = !m_image->isHidden();
    if (enImage && m_images.estVide()) return;
    QSize voulue = kBoite.scaled(place, Qt::KeepAspectRatio).boundedTo(kBoite * 1.5);
    if (enImage) {
        const QSize large = m_images.taille() * VueAffiche::kAgrandissementMax;
        voulue =
            kBoite.scaled(place, Qt::KeepAspectRatio).boundedTo(kBoite.scaled(large, Qt::KeepAspectRatioByExpanding));
    }
    setFixedSize(voulue.expandedTo(kPlusPetite));
}

void CadreAffiche::resizeEvent(QResizeEvent*) {
    m_image->setGeometry(rect());
    composeDessin();
}

// The caption lets the mouse through to its frame; accepting the press brings the release here.
void CadreAffiche::mousePressEvent(QMouseEvent* evenement) {
    evenement->setAccepted(evenement->button() == Qt::LeftButton && !m_statut->isHidden());
}

void CadreAffiche::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() == Qt::LeftButton && !m_statut->isHidden() && rect().contains(evenement->pos()))
        emit statutClique();
}

void CadreAffiche::paintEvent(QPaintEvent*) {
    if (!m_image->isHidden()) return;
    QPainter peintre(this);
    peintAfficheVierge(peintre, rect(), palette());
    const QColor fond = palette().color(QPalette::Window), teinte = accent(palette());
    if (m_clap.width() >= 20) peintPictogramme(peintre, m_clap, Pictogramme::Clap, melange(teinte, fond, 0.55));
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accent(palette()));
}

}  // namespace ui
