#pragma once

#include "platform/ecran/Controles.h"

namespace view {

inline constexpr int kTwipsParPixel = 15;  // logical pixels

// The scroll bar along the top of the viewer: its value is a percentage of the picture's height. Places in twips.
struct BarreDefilement : ecran::Controle {
    int Value = 0;  // 0 to 100
    int SmallChange = 5, LargeChange = 20;
    int Left = 250 * kTwipsParPixel;  // the two buttons stand before it; told by the window
    int Width = 0;
    int Height = 36 * kTwipsParPixel;
    friend bool operator==(const BarreDefilement&, const BarreDefilement&) = default;
};

// The window frmAffiche. Its caption is the sheet's captionAffiche. Everything in twips.
struct EtatAffiche {
    bool Visible = false;
    int presentations = 0;  // rises each time it is shown: it then comes before the others

    int Width = 0, Height = 0;               // asked for at each load: Picture1.numero rises
    int ScaleWidth = 0, ScaleHeight = 0;     // inside the window
    int largeurEcran = 0, hauteurEcran = 0;  // told by the window; 0 while unknown

    ecran::Image Picture1;  // at the picture's own size times the zoom, moved by the scroll bar
    int zoom = 100;         // per cent; each load comes back to 100
    BarreDefilement HScroll1;
    ecran::Etiquette lblTaille;  // "600 × 900 pixels · 84 Ko · 125 %", or why there is no picture

    // Nothing of the picture is outside the window, or there is none.
    [[nodiscard]] bool imageEntiere() const {
        return Picture1.vide || (Picture1.Width <= ScaleWidth && Picture1.Height <= ScaleHeight - 2 * HScroll1.Height);
    }
};

}  // namespace view
