#include "Attente.h"
#include "ui/Couleurs.h"
#include "ui/Etiquettes.h"
#include "ui/Palettes.h"

#include <QImage>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using ui::contraste;
using ui::melange;
using P = QPalette;

P duBureau(QRgb fenetre, QRgb texte, QRgb accent, QRgb texteAccent) {
    P palette{QColor(fenetre)};
    for (const P::ColorRole role : {P::WindowText, P::Text, P::ButtonText})
        palette.setColor(role, QColor(texte));
    palette.setColor(P::Highlight, QColor(accent));
    palette.setColor(P::HighlightedText, QColor(texteAccent));
    QColor invite(texte);
    invite.setAlpha(128);
    palette.setColor(P::PlaceholderText, invite);
    return ui::rendueLisible(palette);
}

// Every pair of a text and what it stands on that the style and the widgets paint.
TEST(Couleurs, EveryTextCanBeReadOnItsSurface) {
    const std::pair<const char*, P> palettes[] = {
        {"clear", ui::rendueLisible(ui::paletteClaire())},
        {"dark", ui::rendueLisible(ui::paletteSombre())},
        {"a desktop's blue", duBureau(0xffefefef, 0xff000000, 0xff308cc6, 0xffffffff)},
        {"a desktop's yellow", duBureau(0xff2a2a2a, 0xffbbbbbb, 0xfff0c040, 0xffffffff)},
        {"a desktop's grey", duBureau(0xffb0b0b0, 0xff606060, 0xff909090, 0xff707070)}};
    for (const auto& [nom, p] : palettes) {
        const QColor fenetre = p.color(P::Window), bouton = p.color(P::Button), base = p.color(P::Base);
        const QColor encre = p.color(P::ButtonText), surface = melange(bouton, base, ui::kPartDuBouton);
        const QColor surAccent = p.color(P::Active, P::HighlightedText), discret = ui::texteDiscret(p);
        const std::tuple<const char*, QColor, QColor> paires[] = {
            {"label", p.color(P::WindowText), fenetre},
            {"label on an empty surface", p.color(P::WindowText), ui::voile(p)},
            {"field", p.color(P::Text), base},
            {"row under the mouse", p.color(P::Text), ui::voile(p)},
            {"placeholder", p.color(P::PlaceholderText), base},
            {"button", encre, surface},
            {"button under the mouse", encre, melange(encre, surface, ui::kOmbreSurvolee)},
            {"pressed button", encre, melange(encre, surface, ui::kOmbrePressee)},
            {"flat button under the mouse", encre, melange(encre, fenetre, ui::kOmbreSurvolee)},
            {"pressed flat button", encre, melange(encre, fenetre, ui::kOmbrePressee)},
            {"accent", surAccent, ui::accent(p)},
            {"accent under the mouse", surAccent, ui::accentSurvole(p)},
            {"row chosen elsewhere", p.color(P::Inactive, P::HighlightedText), ui::accent(p)},
            {"caption", discret, fenetre},
            {"number of a heading", discret, base},
            {"number under the mouse", discret, ui::voile(p)},
            {"link", ui::accentLisible(p), fenetre},
            {"tip", p.color(P::ToolTipText), p.color(P::ToolTipBase)}};
        for (const auto& [quoi, texte, fond] : paires) {
            EXPECT_EQ(texte.alpha(), 255) << nom << ": " << quoi;
            EXPECT_GE(contraste(texte, fond), 4.5)
                << nom << ": " << quoi << " " << texte.name().toStdString() << " on " << fond.name().toStdString();
        }
    }
    EXPECT_EQ(ui::rendueLisible(ui::paletteClaire()), ui::paletteClaire()) << "legible from the start";
    EXPECT_EQ(ui::rendueLisible(ui::paletteSombre()), ui::paletteSombre());
}

TEST(Boutons, AFlatOneShowsTheMouseAndTheFocus) {
    QWidget fenetre;
    QPushButton bouton("Rechercher", &fenetre), autre("Ajouter", &fenetre);
    bouton.setFlat(true);
    autre.move(0, 60);
    fenetre.resize(200, 120);
    fenetre.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre, essais::kPatience));
    autre.setFocus();
    const auto pointe = [](QPushButton& vers, QPushButton& depuis) {
        QTest::mouseMove(&vers, vers.rect().center());
        return essais::attends([&] { return vers.underMouse() && !depuis.underMouse(); });
    };
    ASSERT_TRUE(pointe(bouton, autre));
    ASSERT_TRUE(pointe(autre, bouton));
    const QImage calme = bouton.grab().toImage();
    bouton.setFocus();
    const QImage focus = bouton.grab().toImage();
    EXPECT_NE(focus, calme);
    autre.setFocus();
    ASSERT_TRUE(pointe(bouton, autre));
    const QImage survol = bouton.grab().toImage();
    EXPECT_NE(survol, calme);
    EXPECT_NE(survol, focus);
}

TEST(Titres, AHelpTitleIsPaintedAsPublished) {
    const auto peint = [](const QString& texte) {
        ui::TitreDeSection titre;
        titre.setText(texte);
        titre.resize(400, 30);
        return titre.grab().toImage();
    };
    EXPECT_NE(peint(" - Multi-supressions :"), peint("Multi-supressions"));
    EXPECT_NE(peint(" - Multi-supressions :"), peint(" - Multi-supressions"));
}

}  // namespace
