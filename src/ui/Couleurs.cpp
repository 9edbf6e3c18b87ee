#include "ui/Couleurs.h"

#include <cmath>

namespace ui {

namespace {

qreal luminance(const QColor& couleur) {
    const auto lineaire = [](qreal c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) + 0.0722 * lineaire(couleur.blueF());
}

qreal contraste(const QColor& a, const QColor& b) {
    const qreal la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

}  // namespace

QColor melange(const QColor& a, const QColor& b, qreal partDeA) {
    const qreal partDeB = 1 - partDeA;
    return QColor::fromRgbF(static_cast<float>(a.redF() * partDeA + b.redF() * partDeB),
                            static_cast<float>(a.greenF() * partDeA + b.greenF() * partDeB),
                            static_cast<float>(a.blueF() * partDeA + b.blueF() * partDeB));
}

QColor texteDiscret(const QPalette& palette) {
    return melange(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.66);
}

QColor filet(const QPalette& palette) {
    return melange(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.20);
}

QColor voile(const QPalette& palette) {
    return melange(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.07);
}

QColor accent(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Highlight);
}

QColor accentLisible(const QPalette& palette) {
    constexpr qreal kContrasteDeLecture = 4.5;
    const QColor fond = palette.color(QPalette::Window), texte = palette.color(QPalette::WindowText);
    QColor couleur = accent(palette);
    for (int i = 1; i <= 10 && contraste(couleur, fond) < kContrasteDeLecture; ++i)
        couleur = melange(texte, accent(palette), i * 0.1);
    return couleur;
}

}  // namespace ui
