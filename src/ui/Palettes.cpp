#include "ui/Palettes.h"

#include "ui/Couleurs.h"

#include <utility>

namespace ui {

namespace {

struct Teintes {
    QRgb fenetre, base, alternee, bouton, texte, texteEteint, accent, invite, bulle, texteBulle;
    QRgb clair, moyenClair, moyen, fonce, ombre;  // the edges that the base style draws
};

constexpr Teintes kClaires{0xffefefef, 0xffffffff, 0xfff7f7f7, 0xffefefef, 0xff000000,
                           0xff8a8a8a, 0xff1f6fb0, 0xff696969, 0xffffffdc, 0xff000000,
                           0xffffffff, 0xffcacaca, 0xffb8b8b8, 0xff9f9f9f, 0xff767676};
constexpr Teintes kSombres{0xff2b2d30, 0xff1e1f22, 0xff26282b, 0xff393b40, 0xffececec,
                           0xff85888d, 0xff2577b9, 0xffa0a3a8, 0xff43454a, 0xffececec,
                           0xff56585d, 0xff4a4c51, 0xff3a3c40, 0xff1b1c1f, 0xff101113};

QPalette compose(const Teintes& teintes) {
    using P = QPalette;
    const std::pair<P::ColorRole, QRgb> roles[] = {
        {P::Window, teintes.fenetre},         {P::WindowText, teintes.texte},  {P::Base, teintes.base},
        {P::AlternateBase, teintes.alternee}, {P::Text, teintes.texte},        {P::Button, teintes.bouton},
        {P::ButtonText, teintes.texte},       {P::BrightText, 0xffffffff},     {P::Light, teintes.clair},
        {P::Midlight, teintes.moyenClair},    {P::Mid, teintes.moyen},         {P::Dark, teintes.fonce},
        {P::Shadow, teintes.ombre},           {P::Highlight, teintes.accent},  {P::HighlightedText, 0xffffffff},
        {P::PlaceholderText, teintes.invite}, {P::ToolTipBase, teintes.bulle}, {P::ToolTipText, teintes.texteBulle}};
    P palette;
    for (const auto& [role, couleur] : roles)
        palette.setColor(role, QColor(couleur));
    for (const P::ColorRole role : {P::WindowText, P::Text, P::ButtonText, P::HighlightedText, P::PlaceholderText})
        palette.setColor(P::Disabled, role, QColor(teintes.texteEteint));
    palette.setColor(P::Disabled, P::Highlight, QColor(teintes.moyen));
    const QColor lien = accentLisible(palette);
    for (const P::ColorRole role : {P::Link, P::LinkVisited})
        palette.setColor(role, lien);
    return palette;
}

}  // namespace

QPalette paletteClaire() {
    return compose(kClaires);
}

QPalette paletteSombre() {
    return compose(kSombres);
}

QPalette rendueLisible(QPalette palette) {
    using P = QPalette;
    // Some surfaces are shades of the text itself, so what one pass changes the next one sees.
    for (int passe = 0; passe < 3; ++passe)
        for (const P::ColorGroup groupe : {P::Active, P::Inactive}) {
            const auto couleur = [&](P::ColorRole role) { return palette.color(groupe, role); };
            const auto met = [&](P::ColorRole role, std::initializer_list<QColor> fonds) {
                const QColor lue = lisible(couleur(role), fonds);
                if (lue != couleur(role)) palette.setColor(groupe, role, lue);
            };
            const QColor fenetre = couleur(P::Window), base = couleur(P::Base), encre = couleur(P::ButtonText);
            const QColor bouton = melange(couleur(P::Button), base, kPartDuBouton);
            met(P::WindowText, {fenetre, voile(palette)});
            met(P::Text, {base, voile(palette)});
            met(P::ButtonText, {bouton, melange(encre, bouton, kOmbrePressee), melange(encre, fenetre, kOmbrePressee)});
            met(P::HighlightedText, {couleur(P::Highlight)});
            met(P::ToolTipText, {couleur(P::ToolTipBase)});
            for (const P::ColorRole role : {P::PlaceholderText, P::Link, P::LinkVisited})
                met(role, {base});
        }
    return palette;
}

}  // namespace ui
