#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QPalette;
class QStyleOption;

// The strokes that the style and the widgets that paint themselves share.
namespace ui {

inline constexpr qreal kRayon = 5;  // of corners, logical pixels

void peintSurface(QPainter& peintre, const QRectF& zone, const QColor& fond, const QColor& bord, qreal rayon = kRayon);
void peintContourDeFocus(QPainter& peintre, const QRectF& zone, const QColor& couleur, qreal rayon = kRayon);
// A chevron in the middle of the zone; 0 points right, 90 down.
void peintChevron(QPainter& peintre, const QRectF& zone, qreal angle, const QColor& couleur);
// In the place of a poster: a sheet tinted with the accent colour, lit from above.
void peintAfficheVierge(QPainter& peintre, const QRectF& zone, const QPalette& palette);
void peintCase(QPainter& peintre, const QStyleOption& option);  // a check box's square
void peintRond(QPainter& peintre, const QStyleOption& option);  // an option button's circle
void peintBouton(QPainter& peintre, const QStyleOption& option, bool plat);

}  // namespace ui
