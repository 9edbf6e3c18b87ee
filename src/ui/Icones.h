#pragma once

#include <QIcon>

class QPainter;

namespace ui {

enum class Pictogramme {
    Loupe,
    Plus,
    Reglages,
    Aide,
    Sortie,
    Etoile,
    Clap,
    Question,
    Attention,
    Erreur,
    Enregistre,
    Remplace,
    MovieCovers  // a logo: filled, and always in the accent colour
};

// Line drawings in the palette's colours, followed when the palette changes.
[[nodiscard]] QIcon icone(Pictogramme pictogramme);
// The same in the accent colour, for the boxes.
[[nodiscard]] QIcon iconeDeBoite(Pictogramme pictogramme);
void peintPictogramme(QPainter& peintre, const QRectF& zone, Pictogramme pictogramme, const QColor& couleur);

}  // namespace ui
