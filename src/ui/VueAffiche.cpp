#include "ui/VueAffiche.h"

#include "ui/Couleurs.h"
#include "ui/Etiquettes.h"
#include "ui/Icones.h"
#include "ui/Traits.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace ui {

namespace {

constexpr QSize kBoite{193, 297};  // 2895 by 4455 twips
constexpr double kReductionMax = 0.5, kAgrandissementMax = 2.9;

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
    if (m_images.estVide()) return;
    const QPixmap& affiche = m_images.affiche(pixels());
    if (affiche.isNull()) return;
    QRectF zone(QPointF(), QSizeF(affiche.size()).scaled(size(), Qt::KeepAspectRatio));
    zone.moveCenter(QRectF(rect()).center());
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    peintre.drawPixmap(zone.toAlignedRect(), affiche);
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accentLisible(palette()));
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
      m_image(new VueAffiche(images, this)),
      m_statut((new Etiquette({}, this))->avecTon(Ton::Discret)->avecLignes(3)) {
    m_statut->setAlignment(Qt::AlignCenter);
    m_statut->setCursor(Qt::PointingHandCursor);
    setFixedSize(kBoite);
}

// Without a picture the keyboard attaches one where the mouse does; the focus then goes on to the picture.
void CadreAffiche::montreImage(bool visible) {
    m_image->setVisible(visible);
    setFocusPolicy(visible ? Qt::NoFocus : Qt::TabFocus);
    setFocusProxy(visible ? m_image : nullptr);
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
    const QSize voulue = kBoite.scaled(place, Qt::KeepAspectRatio).boundedTo(kBoite * kAgrandissementMax);
    setFixedSize(voulue.expandedTo(kBoite * kReductionMax));
}

void CadreAffiche::resizeEvent(QResizeEvent*) {
    m_image->setGeometry(rect());
    m_statut->setGeometry(rect().adjusted(8, height() / 2 - 8, -8, -8));
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
    peintSurface(peintre, rect(), voile(palette()), filet(palette()));
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accent(palette()));
    const QRectF signe(width() / 2.0 - 24, height() / 2.0 - 72, 48, 48);
    peintPictogramme(peintre, signe, Pictogramme::Clap,
                     melange(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.30));
}

}  // namespace ui
