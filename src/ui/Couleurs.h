#pragma once

#include <QColor>
#include <QPalette>

// Every colour of the window comes from the palette, so that light, dark and high-contrast desktops are followed.
namespace ui {

[[nodiscard]] QColor melange(const QColor& a, const QColor& b, qreal partDeA);
[[nodiscard]] QColor texteDiscret(const QPalette& palette);   // captions: quieter than the text, still readable
[[nodiscard]] QColor filet(const QPalette& palette);          // borders and separators
[[nodiscard]] QColor voile(const QPalette& palette);          // hovered or empty surfaces
[[nodiscard]] QColor accent(const QPalette& palette);         // the one accent colour
[[nodiscard]] QColor accentLisible(const QPalette& palette);  // the same, dark or light enough to be read as text

}  // namespace ui
