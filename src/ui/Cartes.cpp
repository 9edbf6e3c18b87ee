#include "ui/Cartes.h"

#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Traits.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

namespace ui {

namespace {

constexpr qreal kRayonDeCarte = 8;
const QColor kAlerte(0xd0, 0x3a, 0x2f);

}  // namespace

Carte::Carte(QLayout* contenu, Sorte sorte) : m_sorte(sorte) {
    contenu->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    setLayout(contenu);
}

void Carte::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    const QColor bord = m_sorte == Sorte::Dangereuse ? melange(kAlerte, filet(palette()), 0.7) : filet(palette());
    peintSurface(peintre, rect(), surfaceDeCarte(palette()), bord, kRayonDeCarte);
}

CoteACote::CoteACote(std::initializer_list<QWidget*> widgets, int aPartirDe, int espacement, QWidget* parent)
    : QWidget(parent), m_boite(new QBoxLayout(QBoxLayout::TopToBottom, this)), m_aPartirDe(aPartirDe) {
    m_boite->setContentsMargins(0, 0, 0, 0);
    m_boite->setSpacing(espacement);
    for (QWidget* widget : widgets)
        m_boite->addWidget(widget, 1);
}

// Whatever the direction is now: it gives way where there is less room.
QSize CoteACote::minimumSizeHint() const {
    int largeur = 0;
    for (int i = 0; i < m_boite->count(); ++i)
        largeur = std::max(largeur, m_boite->itemAt(i)->minimumSize().width());
    return {largeur, m_boite->totalMinimumSize().height()};
}

void CoteACote::resizeEvent(QResizeEvent*) {
    dispose();
}

bool CoteACote::event(QEvent* evenement) {
    if (evenement->type() == QEvent::LayoutRequest) dispose();
    return QWidget::event(evenement);
}

void CoteACote::dispose() {
    int besoin = (m_boite->count() - 1) * m_boite->spacing();
    for (int i = 0; i < m_boite->count(); ++i)
        besoin += m_boite->itemAt(i)->minimumSize().width();
    const bool tiennent = width() >= std::max(besoin, m_aPartirDe);
    const auto voulue = tiennent ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (m_boite->direction() != voulue) m_boite->setDirection(voulue);
}

}  // namespace ui
