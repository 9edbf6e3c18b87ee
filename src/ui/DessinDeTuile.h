#pragma once

#include "browse/MarquesFilm.h"

#include <QPixmap>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace ui {

// One film on the wall: its poster above its title. Without one it is a poster drawn of its names.
struct TuileDessinee {
    const QPixmap* image = nullptr;  // nullptr: not known yet; a null one: there is none
    QString titre, realisateur, annee;
    browse::MarquesFilm marques;
    bool courante = false, survolee = false;  // by the keys, by the mouse
};

// Of a tile's width the poster takes one and a half in height, from its top; the title stands at its bottom.
[[nodiscard]] QRect cadreDeLaTuile(const QRect& tuile);
// In the colours and the font of the widget that it stands in.
void dessineTuile(QPainter& peintre, const QRect& tuile, const TuileDessinee& film, const QWidget& mur);

}  // namespace ui
