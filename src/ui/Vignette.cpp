#include "ui/Vignette.h"

#include "ui/Couleurs.h"
#include "ui/Icones.h"
#include "ui/ImagesQt.h"
#include "ui/Infobulles.h"
#include "ui/Mouvement.h"
#include "ui/Traits.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QThreadPool>
#include <QToolTip>

namespace ui {

namespace {

constexpr int kSousLAffiche = 6;

QString visible(QString titre) {
    constexpr qsizetype kAssez = 200;  // characters; laying out megabytes would hold the window
    titre.truncate(kAssez);
    return titre;
}

}  // namespace

Vignette::Vignette(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    connect(&m_apparition, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    m_apparition.setStartValue(0.0);
    m_apparition.setEndValue(1.0);
}

int Vignette::hauteurPour(int largeur, const QFontMetrics& mesure) {
    return largeur * 3 / 2 + kSousLAffiche + mesure.height();
}

QRect Vignette::cadre() const {
    return {0, 0, width(), width() * 3 / 2};
}

void Vignette::metTitre(const QString& titre) {
    if (titre == accessibleName()) return;
    setAccessibleName(titre);
    ++m_demande;
    m_affiche = {};
    update();
}

void Vignette::chargeAffiche(const QByteArray& octets) {
    const int demande = ++m_demande;
    if (octets.isEmpty()) return montre({});
    const QSize pixels = cadre().size() * devicePixelRatio();
    QThreadPool::globalInstance()->start([octets, pixels, demande, vignette = QPointer<Vignette>(this)] {
        const QImage image = afficheReduite(octets, pixels);
        QMetaObject::invokeMethod(qApp, [image, demande, vignette] {
            if (vignette && vignette->m_demande == demande) vignette->montre(image);
        });
    });
}

void Vignette::montre(const QImage& affiche) {
    const bool nouvelle = m_affiche.isNull() && !affiche.isNull();
    m_affiche = QPixmap::fromImage(affiche);
    m_apparition.stop();
    m_apparition.setDuration(dureeDuMouvement());
    if (nouvelle && dureeDuMouvement() > 0) m_apparition.start();
    update();
}

void Vignette::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place = cadre();
    const bool apparait = m_apparition.state() == QAbstractAnimation::Running;
    if (m_affiche.isNull() || apparait) {
        peintSurface(peintre, place, voile(palette()), {});
        const qreal cote = place.width() * 0.36;
        const QRectF signe(place.center().x() - cote / 2, place.center().y() - cote / 2, cote, cote);
        peintPictogramme(peintre, signe, Pictogramme::Film, filet(palette()));
    }
    if (!m_affiche.isNull()) {
        const QSize taille = m_affiche.size().scaled(place.size(), Qt::KeepAspectRatio);
        place = QRect(QPoint((width() - taille.width()) / 2, place.bottom() + 1 - taille.height()), taille);
        if (apparait) peintre.setOpacity(m_apparition.currentValue().toReal());
        peintre.drawPixmap(place, m_affiche);
        peintre.setOpacity(1);
    }
    if (hasFocus() || underMouse())
        peintContourDeFocus(peintre, place, hasFocus() ? accentLisible(palette()) : filet(palette()), 3);
    const QRect ligne(0, height() - fontMetrics().height(), width(), fontMetrics().height());
    peintre.setPen(texteDiscret(palette()));
    peintre.drawText(ligne, Qt::AlignHCenter | Qt::AlignVCenter,
                     fontMetrics().elidedText(visible(accessibleName()), Qt::ElideRight, ligne.width()));
}

void Vignette::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter)
        click();
    else if (evenement->key() == Qt::Key_Space)
        QAbstractButton::keyPressEvent(evenement);
    else
        evenement->ignore();
}

bool Vignette::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip) return QAbstractButton::event(evenement);
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), enInfobulle(visible(accessibleName())), this);
    return true;
}

}  // namespace ui
