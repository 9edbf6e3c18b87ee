#include "ui/Icones.h"

#include "ui/Couleurs.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace ui {

namespace {

// Drawn on a square of 24 by 24.
QPainterPath trace(Pictogramme pictogramme) {
    QPainterPath t;
    switch (pictogramme) {
        case Pictogramme::Loupe:
            t.addEllipse(QPointF(10.5, 10.5), 6.5, 6.5);
            t.moveTo(15.5, 15.5), t.lineTo(20.5, 20.5);
            break;
        case Pictogramme::Plus:
            t.moveTo(12, 4.5), t.lineTo(12, 19.5);
            t.moveTo(4.5, 12), t.lineTo(19.5, 12);
            break;
        case Pictogramme::Reglages:
            for (const auto& [y, x] : {std::pair(6.5, 15.0), std::pair(12.0, 8.5), std::pair(17.5, 13.5)}) {
                t.moveTo(3.5, y), t.lineTo(x - 2.2, y);
                t.moveTo(x + 2.2, y), t.lineTo(20.5, y);
                t.addEllipse(QPointF(x, y), 2.2, 2.2);
            }
            break;
        case Pictogramme::Aide:
            t.addEllipse(QPointF(12, 12), 8.5, 8.5);
            t.moveTo(12, 11.2), t.lineTo(12, 16.2);
            t.addEllipse(QPointF(12, 7.9), 0.4, 0.4);
            break;
        case Pictogramme::Sortie:
            t.moveTo(13.5, 4), t.lineTo(5, 4), t.lineTo(5, 20), t.lineTo(13.5, 20);
            t.moveTo(10, 12), t.lineTo(20.5, 12);
            t.moveTo(16.8, 8.3), t.lineTo(20.5, 12), t.lineTo(16.8, 15.7);
            break;
        case Pictogramme::Etoile:
            t.moveTo(12, 3.6);
            for (const auto& [x, y] : {std::pair(14.5, 9.1), std::pair(20.5, 9.8), std::pair(16.0, 13.9),
                                       std::pair(17.3, 19.8), std::pair(12.0, 16.8), std::pair(6.7, 19.8),
                                       std::pair(8.0, 13.9), std::pair(3.5, 9.8), std::pair(9.5, 9.1)})
                t.lineTo(x, y);
            t.closeSubpath();
            break;
        case Pictogramme::Question:
            t.addEllipse(QPointF(12, 12), 8.5, 8.5);
            t.moveTo(9.4, 10);
            t.cubicTo(9.4, 6.2, 14.7, 6.4, 14.6, 9.8);
            t.cubicTo(14.5, 11.6, 12, 11.6, 12, 13.8);
            t.addEllipse(QPointF(12, 16.6), 0.4, 0.4);
            break;
        case Pictogramme::Attention:
            t.moveTo(12, 4), t.lineTo(21, 19.5), t.lineTo(3, 19.5), t.closeSubpath();
            t.moveTo(12, 10), t.lineTo(12, 14);
            t.addEllipse(QPointF(12, 16.7), 0.4, 0.4);
            break;
        case Pictogramme::Erreur:
            t.addEllipse(QPointF(12, 12), 8.5, 8.5);
            t.moveTo(9, 9), t.lineTo(15, 15);
            t.moveTo(15, 9), t.lineTo(9, 15);
            break;
        case Pictogramme::Enregistre:
            t.moveTo(12, 4), t.lineTo(12, 15);
            t.moveTo(7.5, 10.5), t.lineTo(12, 15), t.lineTo(16.5, 10.5);
            t.moveTo(4, 16), t.lineTo(4, 20), t.lineTo(20, 20), t.lineTo(20, 16);
            break;
        case Pictogramme::Remplace:
            t.moveTo(4, 8.5), t.lineTo(19, 8.5), t.moveTo(15.2, 4.7), t.lineTo(19, 8.5), t.lineTo(15.2, 12.3);
            t.moveTo(20, 16), t.lineTo(5, 16), t.moveTo(8.8, 12.2), t.lineTo(5, 16), t.lineTo(8.8, 19.8);
            break;
        case Pictogramme::Film:
            t.addRoundedRect(QRectF(3, 4.5, 18, 15), 1.5, 1.5);
            t.moveTo(7.5, 4.5), t.lineTo(7.5, 19.5), t.moveTo(16.5, 4.5), t.lineTo(16.5, 19.5);
            for (const double y : {8.25, 12.0, 15.75}) {
                t.moveTo(3, y), t.lineTo(7.5, y);
                t.moveTo(16.5, y), t.lineTo(21, y);
            }
            break;
        case Pictogramme::Collection:
            for (const double x : {3.5, 13.5})
                for (const double y : {3.5, 13.5})
                    t.addRoundedRect(QRectF(x, y, 7, 7), 1.2, 1.2);
            break;
        case Pictogramme::Annule:
            t.moveTo(9, 4.5), t.lineTo(4.5, 9), t.lineTo(9, 13.5);
            t.moveTo(4.5, 9), t.lineTo(14, 9);
            t.cubicTo(21.5, 9, 21.5, 19.5, 14, 19.5), t.lineTo(9.5, 19.5);
            break;
        case Pictogramme::Retablit:
            t.moveTo(15, 4.5), t.lineTo(19.5, 9), t.lineTo(15, 13.5);
            t.moveTo(19.5, 9), t.lineTo(10, 9);
            t.cubicTo(2.5, 9, 2.5, 19.5, 10, 19.5), t.lineTo(14.5, 19.5);
            break;
        case Pictogramme::Possede:  // a disc
            t.addEllipse(QPointF(12, 12), 8.5, 8.5);
            t.addEllipse(QPointF(12, 12), 2.2, 2.2);
            break;
        case Pictogramme::Prete:  // what has left its place
            t.moveTo(10, 5), t.lineTo(4, 5), t.lineTo(4, 20), t.lineTo(19, 20), t.lineTo(19, 14);
            t.moveTo(10.5, 13.5), t.lineTo(20, 4);
            t.moveTo(13.5, 4), t.lineTo(20, 4), t.lineTo(20, 10.5);
            break;
        case Pictogramme::Reserve:  // a marker left in it
            t.moveTo(6.5, 3.5), t.lineTo(17.5, 3.5), t.lineTo(17.5, 20.5), t.lineTo(12, 16), t.lineTo(6.5, 20.5);
            t.closeSubpath();
            break;
        case Pictogramme::MovieCovers: {  // the letters are cut out of a film's box
            t.addRoundedRect(QRectF(0.5, 2, 23, 20), 3.5, 3.5);
            QFont lettres = QApplication::font();
            lettres.setPixelSize(12);
            lettres.setWeight(QFont::Black);
            QPainterPath initiales;
            initiales.addText(0, 0, lettres, QStringLiteral("MC"));
            const QPointF centre = initiales.boundingRect().center();
            t.addPath(initiales.translated(QPointF(12, 12) - centre));
            break;
        }
        case Pictogramme::Clap:
            t.addRoundedRect(QRectF(3, 10, 18, 10.5), 1.2, 1.2);
            t.moveTo(3.2, 9.6), t.lineTo(2.5, 6.4), t.lineTo(19.8, 2.6), t.lineTo(20.5, 5.8), t.closeSubpath();
            t.moveTo(7.4, 5.4), t.lineTo(9.3, 8.2);
            t.moveTo(12.6, 4.2), t.lineTo(14.5, 7.1);
            break;
    }
    return t;
}

class MoteurIcone final : public QIconEngine {
  public:
    MoteurIcone(Pictogramme pictogramme, bool accentuee) : m_pictogramme(pictogramme), m_accentuee(accentuee) {}

    void paint(QPainter* peintre, const QRect& zone, QIcon::Mode mode, QIcon::State) override {
        const auto groupe = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = QApplication::palette();
        peintPictogramme(
            *peintre, zone, m_pictogramme,
            m_accentuee || m_pictogramme == Pictogramme::MovieCovers
                ? accentLisible(palette)
                : palette.color(groupe, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText));
    }
    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        QPixmap image(taille);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        paint(&peintre, QRect(QPoint(), taille), mode, etat);
        return image;
    }
    QIconEngine* clone() const override { return new MoteurIcone(*this); }

  private:
    Pictogramme m_pictogramme;
    bool m_accentuee;
};

}  // namespace

QIcon icone(Pictogramme pictogramme) {
    return QIcon(new MoteurIcone(pictogramme, false));
}

QIcon iconeDeBoite(const QString& nom, Pictogramme pictogramme) {
    const QIcon duBureau = QIcon::fromTheme(nom);
    // A theme may name a file that no reader is there for.
    if (!duBureau.isNull() && !duBureau.pixmap(48, 48).isNull()) return duBureau;
    return QIcon(new MoteurIcone(pictogramme, true));
}

void peintPictogramme(QPainter& peintre, const QRectF& zone, Pictogramme pictogramme, const QColor& couleur) {
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(zone.topLeft());
    peintre.scale(zone.width() / 24, zone.height() / 24);
    const bool logo = pictogramme == Pictogramme::MovieCovers;
    peintre.setPen(logo ? QPen(Qt::NoPen) : QPen(couleur, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.setBrush(logo || pictogramme == Pictogramme::Etoile ? QBrush(couleur) : QBrush(Qt::NoBrush));
    peintre.drawPath(trace(pictogramme));
    peintre.restore();
}

void peintSigne(QPainter& peintre, const QRectF& zone, const QPalette& palette) {
    QColor fond = accent(palette);
    fond.setAlphaF(0.14f);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(fond);
    peintre.drawEllipse(zone);
    const qreal retrait = zone.width() / 4;
    peintPictogramme(peintre, zone.adjusted(retrait, retrait, -retrait, -retrait), Pictogramme::Clap,
                     accentLisible(palette));
}

}  // namespace ui
