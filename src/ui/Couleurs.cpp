#include "ui/Couleurs.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

qreal luminance(const QColor& couleur) {
    const auto lineaire = [](qreal c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) + 0.0722 * lineaire(couleur.blueF());
}

// On the surface where it is hardest to read.
qreal moindreContraste(const QColor& couleur, std::initializer_list<QColor> fonds) {
    qreal moindre = 21;
    for (const QColor& fond : fonds)
        moindre = std::min(moindre, contraste(couleur, fond));
    return moindre;
}

}  // namespace

qreal contraste(const QColor& a, const QColor& b) {
    const qreal la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor melange(const QColor& a, const QColor& b, qreal partDeA) {
    const qreal partDeB = 1 - partDeA;
    return QColor::fromRgbF(static_cast<float>(a.redF() * partDeA + b.redF() * partDeB),
                            static_cast<float>(a.greenF() * partDeA + b.greenF() * partDeB),
                            static_cast<float>(a.blueF() * partDeA + b.blueF() * partDeB));
}

// A transparent text is judged as it looks on the first surface.
QColor lisible(const QColor& couleur, std::initializer_list<QColor> fonds) {
    if (couleur.alpha() == 255 && moindreContraste(couleur, fonds) >= kContrasteDeLecture) return couleur;
    const QColor opaque = melange(couleur, *fonds.begin(), couleur.alphaF());
    const bool versLeNoir = moindreContraste(Qt::black, fonds) >= moindreContraste(Qt::white, fonds);
    QColor resultat = opaque;
    for (int i = 1; i <= 20 && moindreContraste(resultat, fonds) < kContrasteDeLecture; ++i)
        resultat = melange(versLeNoir ? Qt::black : Qt::white, opaque, i * 0.05);
    return resultat;
}

QColor texteDiscret(const QPalette& palette) {
    const QColor fond = palette.color(QPalette::Window);
    return lisible(melange(palette.color(QPalette::WindowText), fond, 0.66),
                   {fond, palette.color(QPalette::Base), voile(palette)});
}

QColor filet(const QPalette& palette) {
    return melange(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.20);
}

QColor voile(const QPalette& palette) {
    return melange(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.07);
}

QColor surfaceDeCarte(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base), fenetre = palette.color(QPalette::Window);
    const bool lisible = contraste(palette.color(QPalette::WindowText), base) >= kContrasteDeLecture &&
                         contraste(accentLisible(palette), base) >= kContrasteDeLecture;
    return lisible ? melange(base, fenetre, 0.65) : fenetre;
}

QColor accent(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Highlight);
}

// Away from the text that stands on it.
QColor accentSurvole(const QPalette& palette) {
    const bool texteClair = palette.color(QPalette::Active, QPalette::HighlightedText).lightnessF() > 0.5f;
    return melange(texteClair ? Qt::black : Qt::white, accent(palette), 0.18);
}

QColor accentLisible(const QPalette& palette) {
    return lisible(accent(palette), {palette.color(QPalette::Window), voile(palette)});
}

}  // namespace ui
