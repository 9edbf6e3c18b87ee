#include "ui/Traits.h"

#include "ui/Couleurs.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace ui {

namespace {

QRectF demiPixel(const QRectF& zone) {
    return zone.adjusted(0.5, 0.5, -0.5, -0.5);
}

bool actif(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Enabled);
}

struct Habit {
    QColor fond, bord, signe;
};

// A ticked mark is filled with the accent, an empty one is a hollow surface.
Habit habitDeMarque(const QStyleOption& option) {
    const bool survol = actif(option) && option.state.testFlag(QStyle::State_MouseOver);
    const bool pleine = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor bord =
        melange(option.palette.color(QPalette::WindowText), option.palette.color(QPalette::Window), 0.45);
    if (!actif(option)) return {voile(option.palette), filet(option.palette), texteDiscret(option.palette)};
    if (pleine)
        return {accent(option.palette), accent(option.palette), option.palette.color(QPalette::HighlightedText)};
    return {option.palette.color(QPalette::Base), survol ? accent(option.palette) : bord, {}};
}

}  // namespace

void peintSurface(QPainter& peintre, const QRectF& zone, const QColor& fond, const QColor& bord, qreal rayon) {
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(bord.isValid() ? QPen(bord, 1) : QPen(Qt::NoPen));
    peintre.setBrush(fond.isValid() ? QBrush(fond) : QBrush(Qt::NoBrush));
    peintre.drawRoundedRect(bord.isValid() ? demiPixel(zone) : zone, rayon, rayon);
    peintre.restore();
}

void peintContourDeFocus(QPainter& peintre, const QRectF& zone, const QColor& couleur, qreal rayon) {
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(couleur, 2));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(zone.adjusted(1, 1, -1, -1), rayon, rayon);
    peintre.restore();
}

void peintChevron(QPainter& peintre, const QRectF& zone, qreal angle, const QColor& couleur) {
    constexpr qreal kBras = 3.5;
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(zone.center());
    peintre.rotate(angle);
    peintre.setPen(QPen(couleur, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {{-kBras / 2, -kBras}, {kBras / 2, 0}, {-kBras / 2, kBras}};
    peintre.drawPolyline(points, 3);
    peintre.restore();
}

void peintAfficheVierge(QPainter& peintre, const QRectF& zone, const QPalette& palette) {
    const QColor fond = palette.color(QPalette::Window), teinte = accent(palette);
    QLinearGradient lumiere(zone.topLeft(), zone.bottomLeft());
    lumiere.setColorAt(0, melange(teinte, fond, 0.26));
    lumiere.setColorAt(1, melange(teinte, fond, 0.10));
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(melange(teinte, fond, 0.40), 1));
    peintre.setBrush(lumiere);
    peintre.drawRoundedRect(demiPixel(zone), kRayon, kRayon);
    peintre.restore();
}

void peintCase(QPainter& peintre, const QStyleOption& option) {
    const Habit habit = habitDeMarque(option);
    const QRectF zone = option.rect;
    peintSurface(peintre, zone, habit.fond, habit.bord, 3.5);
    if (!option.state.testFlag(QStyle::State_On)) return;
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(habit.signe, zone.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto point = [&](qreal x, qreal y) { return zone.topLeft() + QPointF(zone.width() * x, zone.height() * y); };
    const QPointF coche[] = {point(0.25, 0.53), point(0.43, 0.70), point(0.76, 0.32)};
    peintre.drawPolyline(coche, 3);
    peintre.restore();
}

void peintRond(QPainter& peintre, const QStyleOption& option) {
    const Habit habit = habitDeMarque(option);
    const QRectF zone = option.rect;
    peintSurface(peintre, zone, habit.fond, habit.bord, zone.width() / 2);
    if (!option.state.testFlag(QStyle::State_On)) return;
    const qreal retrait = zone.width() * 0.31;
    const QRectF point = zone.adjusted(retrait, retrait, -retrait, -retrait);
    peintSurface(peintre, point, habit.signe, {}, point.width() / 2);
}

void peintBouton(QPainter& peintre, const QStyleOption& option, bool plat) {
    const bool survol = actif(option) && option.state.testFlag(QStyle::State_MouseOver);
    const bool enfonce = actif(option) && (option.state & (QStyle::State_Sunken | QStyle::State_On));
    const QColor surface = option.palette.color(QPalette::Button), texte = option.palette.color(QPalette::ButtonText);
    const QColor base = melange(surface, option.palette.color(QPalette::Base), kPartDuBouton);
    const bool ouvert = plat && !option.state.testFlag(QStyle::State_Sunken);  // the way to a panel that is open
    const qreal ombre = enfonce && !ouvert ? kOmbrePressee : enfonce || survol ? kOmbreSurvolee : 0;
    if (plat && ombre == 0) return;
    if (plat) {
        peintSurface(peintre, option.rect, melange(texte, option.palette.color(QPalette::Window), ombre), {});
        return;
    }
    const QColor fond = actif(option) ? melange(texte, base, ombre) : voile(option.palette);
    peintSurface(peintre, option.rect, fond, filet(option.palette));
}

}  // namespace ui
