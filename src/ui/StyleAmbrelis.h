#pragma once

#include <QProxyStyle>

namespace ui {

// Fusion with flat surfaces, soft corners and air, drawn in the palette's colours: the window's look without style
// sheets, which would cost the start its time.
class StyleAmbrelis final : public QProxyStyle {
    Q_OBJECT
  public:
    StyleAmbrelis();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option, QPainter* peintre,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint conseil, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* retour) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contenu,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap image, const QStyleOption* option, const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl controle, const QStyleOptionComplex* option, SubControl partie,
                         const QWidget* widget) const override;
};

}  // namespace ui
