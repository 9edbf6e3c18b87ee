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
    Lien,
    Etoile,
    Clap,
    Question,
    Attention,
    Erreur,
    Enregistre,
    Remplace
};

// Line drawings in the palette's colours, followed when the palette changes.
[[nodiscard]] QIcon icone(Pictogramme pictogramme);
// The same in the accent colour, for the boxes.
[[nodiscard]] QIcon iconeDeBoite(Pictogramme pictogramme);
void peintPictogramme(QPainter& peintre, const QRectF& zone, Pictogramme pictogramme, const QColor& couleur);

}  // namespace ui
