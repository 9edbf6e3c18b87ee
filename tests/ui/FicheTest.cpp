#include "ProgrammeDEssai.h"
#include "ui/BoutonPuce.h"
#include "ui/Etiquettes.h"
#include "ui/EtoilesNote.h"
#include "ui/Typographie.h"
#include "ui/VueAffiche.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextEdit>

namespace {

using essais::octetsDImage;
using essais::ProgrammeDEssai;

struct Fiche : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"Alien", "Ridley Scott", "Angoisse", octetsDImage(Qt::red, {400, 600})},
                       {"Brazil", "Terry Gilliam", "Drame", octetsDImage(Qt::blue, {40, 60})},
                       {"Casque d'or", "Jacques Becker", "Drame", ""}});
        essai.choisit("ChoixZone", 1);
        essai.cliqueTitre("Alien");
    }
    ui::EtoilesNote& etoiles() { return essai.trouve<ui::EtoilesNote>("etoilesNote"); }
    void touche(Qt::Key code) { QTest::keyClick(essai.fenetre().focusWidget(), code); }
    [[nodiscard]] QRect place(const char* nom) {
        QWidget& widget = essai.trouve(nom);
        return {widget.mapTo(&essai.fenetre(), QPoint()), widget.size()};
    }
    [[nodiscard]] std::string texteDe(const char* nom) {
        return essai.trouve<QAbstractButton>(nom).text().toStdString();
    }
    // How much of the picture's frame its colour fills, across the middle.
    [[nodiscard]] int largeurPeinte(const QColor& couleur) {
        const QImage image = essai.trouve("Image1").grab().toImage();
        int pixels = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QColor ici = image.pixelColor(x, image.height() / 2);
            pixels += std::abs(ici.red() - couleur.red()) + std::abs(ici.blue() - couleur.blue()) < 60;
        }
        return pixels;
    }
};

TEST_F(Fiche, AChipLeadsToItsFieldAndFollowsWhatIsStored) {
    EXPECT_EQ(texteDe("cmdPuce_0"), "Possédé · DVD");
    EXPECT_FALSE(essai.trouve("cmdPuce_1").isVisible());
    essai.clique("cmdPuce_0");
    EXPECT_TRUE(essai.trouve("Combo7_2").hasFocus());
    essai.clique("Option1_0");
    essai.clique("cmdValiderInfosPossessions");
    EXPECT_EQ(texteDe("cmdPuce_0"), "Non possédé");
    essai.clique("cmdPuce_0");
    EXPECT_TRUE(essai.trouve("Option1_0").hasFocus());
    essai.clique("Option1_1");
    auto& lieu = essai.trouve<QLineEdit>("Text10_3");
    lieu.setFocus();
    QTest::keyClicks(&lieu, "Salon & cave");
    essai.trouve<QComboBox>("Combo7_0").lineEdit()->setFocus();
    QTest::keyClicks(&essai.trouve("Combo7_0"), "Paul");
    EXPECT_EQ(texteDe("cmdPuce_0"), "Non possédé");
    essai.clique("cmdValiderInfosPossessions");
    EXPECT_EQ(texteDe("cmdPuce_0"), "Possédé · Salon && cave");
    EXPECT_EQ(texteDe("cmdPuce_1"), "Prêté à Paul");
    essai.clique("cmdGeneralites");
    essai.trouve("cmdPuce_1").setFocus();
    touche(Qt::Key_Return);
    EXPECT_TRUE(essai.trouve("Combo7_0").isVisible());
    EXPECT_TRUE(essai.trouve("Combo7_0").hasFocus());
}

TEST_F(Fiche, StarsAreGivenByTheMouseAndByTheKeys) {
    const auto endroit = [&](int etoile) {
        const double cote = std::min(etoiles().width() / 10.0, 24.0);
        return QPoint(static_cast<int>(cote * (etoile - 0.5)), etoiles().height() / 2);
    };
    QTest::mouseClick(&etoiles(), Qt::LeftButton, {}, endroit(8));
    EXPECT_EQ(essai.texte("lblNote"), "Note : 8/10");
    EXPECT_EQ(etoiles().texte(), "8 sur 10");
    QTest::mouseClick(&etoiles(), Qt::LeftButton, {}, endroit(3));
    QTest::mouseDClick(&etoiles(), Qt::LeftButton, {}, endroit(3));
    QTest::mouseRelease(&etoiles(), Qt::LeftButton, {}, endroit(3));
    EXPECT_EQ(essai.texte("lblNote"), "Note : 3/10") << "the second click of two takes nothing away";
    QTest::mouseClick(&etoiles(), Qt::LeftButton, {}, endroit(3));
    EXPECT_EQ(essai.texte("lblNote"), "Pas de notation");

    etoiles().setFocus();
    QAccessibleInterface* lu = QAccessible::queryAccessibleInterface(&etoiles());
    ASSERT_TRUE(lu && lu->valueInterface());
    EXPECT_EQ(lu->text(QAccessible::Name), "Note du film");
    for (const Qt::Key code : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up})
        touche(code);
    EXPECT_EQ(lu->valueInterface()->currentValue().toInt(), 3);
    EXPECT_EQ(lu->text(QAccessible::Value), "3 sur 10");
    EXPECT_EQ(essai.texte("lblNote"), "Pas de notation") << "proposed, not given";
    touche(Qt::Key_Return);
    EXPECT_EQ(essai.texte("lblNote"), "Note : 3/10");
    EXPECT_TRUE(etoiles().hasFocus());
    touche(Qt::Key_End);
    touche(Qt::Key_Escape);
    EXPECT_EQ(etoiles().texte(), "3 sur 10");
    touche(Qt::Key_End);
    essai.arbre().setFocus();
    EXPECT_EQ(etoiles().texte(), "3 sur 10") << "left without Enter";
    essai.cliqueTitre("Brazil");
    EXPECT_EQ(etoiles().texte(), "Pas de notation");
}

TEST_F(Fiche, APosterIsHardlyEnlargedAndKeepsItsPlace) {
    const QRect avant = place("cadreAffiche");
    EXPECT_GT(avant.height(), 400);
    essai.programme->commande().execute([&] { essai.etats().avis.frameAvis.Visible = true; });
    ASSERT_TRUE(essais::attends([&] { return essai.trouve("frameAvis").isVisible(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(place("cadreAffiche"), avant) << "above the line of the notices";

    essai.cliqueTitre("Brazil");
    EXPECT_EQ(place("cadreAffiche").topLeft(), avant.topLeft());
    EXPECT_LT(place("cadreAffiche").width(), avant.width()) << "the room is the summary's";
    EXPECT_NEAR(largeurPeinte(Qt::blue), 52, 2);
}

TEST_F(Fiche, AFilmWithoutAPosterHasADrawnOneAndAButton) {
    essai.cliqueTitre("Casque D'Or");
    auto& ajouter = essai.trouve<QPushButton>("cmdAjouterAffiche");
    EXPECT_TRUE(ajouter.isVisible());
    EXPECT_TRUE(essai.trouve("cadreAffiche").rect().contains(ajouter.geometry()));
    ajouter.setText(ajouter.text() + " plus longue");  // it comes after the frame has its size
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    EXPECT_GE(ajouter.width(), ajouter.sizeHint().width());
    essai.boites.fichier = essai.dossier.ecrit("abimee.jpg", "\xff\xd8\xff");
    QTest::mouseClick(&ajouter, Qt::LeftButton);
    EXPECT_EQ(ajouter.text(), "Remplacer l'affiche…") << "it cannot be read";
    essai.boites.fichier = essai.dossier.ecrit("bonne.jpg", octetsDImage(Qt::green, {200, 300}));
    QTest::mouseClick(&ajouter, Qt::LeftButton);
    EXPECT_TRUE(essai.trouve("Image1").isVisible());
    EXPECT_FALSE(ajouter.isVisible());
}

// "Valider" stands still, whatever is shown of the copy and however far it is scrolled.
TEST_F(Fiche, TheHoldingsAreStoredFromOnePlace) {
    essai.fenetre().resize(900, 600);
    essai.clique("cmdAutresInfos");
    essai.clique("Option1_1");
    ASSERT_TRUE(essai.trouve("cmdValiderInfosPossessions").isVisible());
    const QRect avant = place("cmdValiderInfosPossessions");
    essai.trouve("Text10_4").setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(essais::attends([&] { return !essai.trouve("Text10_4").visibleRegion().isEmpty(); }));
    EXPECT_EQ(place("cmdValiderInfosPossessions"), avant);
    essai.clique("Option1_0");
    EXPECT_EQ(place("cmdValiderInfosPossessions"), avant);
}

TEST_F(Fiche, DeletionByTickingStaysOverTheSheet) {
    essai.clique("cmdConfigurer");
    essai.clique("cmdMultiSuppress");
    essai.clique("Option4_1");
    EXPECT_EQ(essai.texte("lblCoches"), "0 film coché");
    auto& modele = *essai.arbre().model();
    essai.choisit("ChoixTri", 1);
    modele.setData(modele.index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(essai.texte("lblCoches"), "1 film coché");
    essai.cliqueTitre("Alien");
    EXPECT_TRUE(essai.trouve("Label1_0").isVisible() && essai.trouve("lblCoches").isVisible());
    QCoreApplication::processEvents();
    EXPECT_LT(place("lblCoches").bottom(), place("Label1_0").top());
}

// One bar for the sheet, however low the window; the keys that scroll by screens are its own.
TEST_F(Fiche, ALongSummaryScrollsWithItsPage) {
    essai.fenetre().resize(900, 600);
    auto& resume = essai.trouve<QTextEdit>("Text1");
    essai.programme->commande().execute([&] {
        essai.etats().fiche.Text1.Text.clear();
        for (int i = 0; i < 200; ++i)
            essai.etats().fiche.Text1.Text += "Une ligne du résumé.\n";
    });
    QScrollBar* barre = nullptr;
    for (QWidget* autour = resume.parentWidget(); autour && !barre; autour = autour->parentWidget())
        if (auto* zone = qobject_cast<QScrollArea*>(autour)) barre = zone->verticalScrollBar();
    ASSERT_TRUE(barre);
    ASSERT_TRUE(essais::attends([&] { return barre->maximum() > 2000; }));
    EXPECT_FALSE(resume.verticalScrollBar()->isVisible());
    resume.setFocus();
    QTest::keyClick(&resume, Qt::Key_PageDown);
    EXPECT_EQ(barre->value(), barre->pageStep());
    QTest::keyClick(&resume, Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(barre->value(), barre->maximum() - 100);
}

// What is left out is told by three points, and whole parts go first.
TEST(Etiquette, WhatDoesNotFitIsSaid) {
    const auto peinte = [](auto&& widget, QSize taille) {
        widget.resize(taille);
        return widget.grab().toImage();
    };
    ui::Etiquette coupee("un;\n deux;\n trois"), courte("un;\ndeux; …");
    EXPECT_EQ(peinte(*coupee.avecLignes(2), {90, 60}), peinte(*courte.avecLignes(2), {90, 60}));
    ui::BoutonPuce puce(ui::BoutonPuce::Genre::Appel), debut(ui::BoutonPuce::Genre::Appel);
    puce.setText("Prêté à Paul depuis le 12/11/2026");
    debut.setText("Prêté à Paul…");
    const QSize place(debut.sizeHint().width() + 20, debut.sizeHint().height());
    EXPECT_EQ(peinte(puce, place), peinte(debut, place));
}

TEST(Typographie, NoLineBeginsOrEndsWithALoneSign) {
    const QChar n = QChar::Nbsp;
    EXPECT_EQ(ui::sansSigneIsole("un mot : « Rosebud » ; et ? !"),
              QString("un mot%1: «%1Rosebud%1»%1; et%1?%1!").arg(n));
    EXPECT_EQ(ui::sansSigneIsole(" ;a :"), QString("%1;a%1:").arg(n));
    EXPECT_EQ(ui::sansSigneIsole("rien: à, changer. "), "rien: à, changer. ");
}

}  // namespace
