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
    Film,
    Collection,
    Annule,
    Retablit,
    Possede,
    Prete,
    Reserve,
    MovieCovers  // a logo: filled, and always in the accent colour
};

// Line drawings in the palette's colours, followed when the palette changes.
[[nodiscard]] QIcon icone(Pictogramme pictogramme);
// That of a box: the desktop's, by its name there, else a drawing of ours in the accent colour.
[[nodiscard]] QIcon iconeDeBoite(const QString& nom, Pictogramme pictogramme);
void peintPictogramme(QPainter& peintre, const QRectF& zone, Pictogramme pictogramme, const QColor& couleur);
// The program's own sign, on a disc: of pages that have nothing else to show.
void peintSigne(QPainter& peintre, const QRectF& zone, const QPalette& palette);

}  // namespace ui
