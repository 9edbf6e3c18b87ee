#include "ui/BoutonActualiser.h"

#include "ui/Couleurs.h"
#include "ui/Traits.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace ui {

BoutonActualiser::BoutonActualiser(QWidget* parent) : QPushButton(parent) {
    setFlat(true);
    setAutoDefault(true);
    setFixedSize(30, 30);
}

void BoutonActualiser::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    peintBouton(peintre, option, true);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(rect().center() + QPointF(0.5, 0.5));
    const QColor encre = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
    peintre.setPen(QPen(encre, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath trace;
    trace.arcMoveTo(QRectF(-6.5, -6.5, 13, 13), 20);
    trace.arcTo(QRectF(-6.5, -6.5, 13, 13), 20, 300);
    trace.moveTo(6.8, -6.6), trace.lineTo(6.4, -2.1), trace.lineTo(2.0, -2.5);
    peintre.drawPath(trace);
    peintre.resetTransform();
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accentLisible(palette()));
}

}  // namespace ui
