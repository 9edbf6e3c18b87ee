#pragma once

#include <QColor>
#include <QPalette>
#include <initializer_list>

// Every colour of the window comes from the palette, so that light, dark and high-contrast desktops are followed.
namespace ui {

inline constexpr qreal kContrasteDeLecture = 4.5;

// How much of its text's colour a button's surface takes under the mouse and when pressed, and of its own at rest.
inline constexpr qreal kOmbreSurvolee = 0.08, kOmbrePressee = 0.16, kPartDuBouton = 0.45;

[[nodiscard]] qreal contraste(const QColor& a, const QColor& b);  // 1 to 21; of opaque colours
[[nodiscard]] QColor melange(const QColor& a, const QColor& b, qreal partDeA);
// The colour as it is where it can be read on all of the surfaces, else with as much black or white as that takes.
[[nodiscard]] QColor lisible(const QColor& couleur, std::initializer_list<QColor> fonds);

[[nodiscard]] QColor texteDiscret(const QPalette& palette);  // captions: quieter than the text, still readable
[[nodiscard]] QColor filet(const QPalette& palette);         // borders and separators
[[nodiscard]] QColor voile(const QPalette& palette);         // hovered or empty surfaces
[[nodiscard]] QColor surfaceDeCarte(
    const QPalette& palette);                          // of a group of controls; the window's texts can be read there
[[nodiscard]] QColor accent(const QPalette& palette);  // the one accent colour
[[nodiscard]] QColor accentSurvole(const QPalette& palette);  // a surface of that colour under the mouse
[[nodiscard]] QColor accentLisible(const QPalette& palette);  // the same, dark or light enough to be read as text

}  // namespace ui
