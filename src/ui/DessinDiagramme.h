#pragma once

#include "ensemble/Statistiques.h"

#include <QColor>
#include <QFont>
#include <QImage>

class QPainter;
class QPrinter;

// How the bars of a diagram are drawn, on the screen, in a picture and on paper.
namespace ui {

struct EncresDeBarres {
    QColor texte, discret, barre;
};
// What its bars have in common, in the units of the painter.
struct MesuresDeBarres {
    qreal libelle = 0, nombre = 0;  // widths of the two texts
    long laPlusLongue = 1;          // films

    [[nodiscard]] static MesuresDeBarres de(const ensemble::Diagramme& diagramme, const QFont& police, qreal largeur);
};

[[nodiscard]] QString texteDeLaBarre(const ensemble::Diagramme& diagramme, const ensemble::Barre& barre);
// One bar: its label, the bar, and its number beside the bar. The films that do not say have a hatched one.
void peintBarre(QPainter& peintre, const QRectF& ligne, const ensemble::Diagramme& diagramme,
                const ensemble::Barre& barre, const MesuresDeBarres& mesures, const EncresDeBarres& encres);

// On white, as wide as that many pixels of a screen; twice as sharp where it is not too high. Its bars are few enough.
[[nodiscard]] QImage imageDuDiagramme(const ensemble::Diagramme& diagramme, int largeur);
// As many pages as its bars take. False: the printer refused.
[[nodiscard]] bool imprimeDiagramme(QPrinter& imprimante, const ensemble::Diagramme& diagramme);

}  // namespace ui
