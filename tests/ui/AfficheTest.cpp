#include "ProgrammeDEssai.h"
#include "ui/FenetreAffiche.h"

#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

using essais::ProgrammeDEssai;

class Affiche : public ::testing::Test {
  protected:
    ProgrammeDEssai essai;

    void ouvre(const std::vector<essais::Film>& films) {
        essai.demarre();
        essai.importe(films);
        essai.cliqueTitre(films.front().titre);
        essai.clique("Image1");
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&fenetre(), essais::kPatience));
    }
    QWidget& fenetre() { return essai.trouve("frmAffiche"); }
    QWidget& image() { return essai.trouve("Picture1"); }
    QScrollBar& barre() { return essai.trouve<QScrollBar>("HScroll1"); }
    QColor milieu() { return image().grab().toImage().pixelColor(image().rect().center()); }
    // As the desktop delivers a key: to the control that has the focus in the window.
    void touche(Qt::Key code) {
        QWidget* active = fenetre().focusWidget();
        QTest::keyClick(active ? active : &fenetre(), code);
    }
};

TEST_F(Affiche, OpensAtThePicturesSizeAndIsOnlyHidden) {
    essai.demarre();
    EXPECT_TRUE(fenetre().findChildren<QWidget*>().isEmpty()) << "composed when it first opens";
    essai.importe({{"Alien", "Ridley Scott", "Angoisse", essais::octetsDImage(Qt::red, {200, 300})}});
    essai.cliqueTitre("Alien");
    EXPECT_TRUE(fenetre().findChildren<QWidget*>().isEmpty());
    essai.clique("Image1");
    EXPECT_TRUE(fenetre().isVisible());
    EXPECT_FALSE(fenetre().isModal());
    EXPECT_EQ(fenetre().windowTitle(), "Alien");
    EXPECT_EQ(image().size(), QSize(200, 300));
    EXPECT_EQ(image().toolTip(), "Curseurs pour visionner l'image, Clic pour fermer, Page suiv/préc pour suivant");
    EXPECT_EQ(fenetre().height(), 300 + 2 * 36);
    EXPECT_EQ(fenetre().width(), 200 + barre().x() + 33);
    EXPECT_TRUE(essai.texte("lblTaille").starts_with("200 × 300 pixels · ")) << essai.texte("lblTaille");
    for (const char* nom : {"cmdSauverImage", "cmdRemplacerImage"}) {
        EXPECT_FALSE(essai.trouve<QAbstractButton>(nom).text().isEmpty());
        EXPECT_LT(essai.trouve(nom).geometry().right(), barre().x());
        EXPECT_GE(essai.trouve(nom).width(), essai.trouve(nom).sizeHint().width()) << "its words are whole";
    }
    EXPECT_GT(milieu().red(), 200);

    const auto rouvre = [&] {
        EXPECT_FALSE(fenetre().isVisible());
        essai.clique("Image1");
        EXPECT_TRUE(fenetre().isVisible());
    };
    QTest::mouseClick(&image(), Qt::LeftButton);
    rouvre();
    for (const Qt::Key code : {Qt::Key_F1, Qt::Key_Escape}) {
        touche(code);
        rouvre();
    }
    fenetre().close();
    rouvre();
    EXPECT_FALSE(essai.programme->commande().finie());
}

TEST_F(Affiche, ScrollsByTheBarTheWheelAndTheHand) {
    ouvre({{"Alien", "Ridley Scott", "Angoisse", essais::octetsDImage(Qt::red, {1600, 1000})}});
    EXPECT_EQ(fenetre().frameGeometry().size(), fenetre().screen()->size()) << "capped";
    EXPECT_EQ(image().size(), QSize(1600, 1000));
    const int haut = image().y();
    touche(Qt::Key_Down);
    EXPECT_EQ(barre().value(), 5);
    EXPECT_EQ(image().y(), haut - 50);
    touche(Qt::Key_Right);
    EXPECT_EQ(barre().value(), 10);
    touche(Qt::Key_Left);
    EXPECT_EQ(barre().value(), 5);
    touche(Qt::Key_Up);
    EXPECT_EQ(barre().value(), 0);
    touche(Qt::Key_End);
    EXPECT_EQ(image().y(), haut - 1000) << "all of it above";
    touche(Qt::Key_Home);

    const auto roule = [&](const QPoint& angle) {
        QWheelEvent cran(QPointF(9, 9), fenetre().mapToGlobal(QPointF(9, 9)), {}, angle, {}, {}, Qt::NoScrollPhase,
                         false);
        QApplication::sendEvent(&fenetre(), &cran);
    };
    roule({0, -120});
    EXPECT_EQ(image().y(), haut - 90);
    EXPECT_EQ(barre().value(), 9);
    roule({0, 1200});
    EXPECT_EQ(image().y(), haut);

    const QPoint prise = image().mapFromGlobal(fenetre().mapToGlobal(fenetre().rect().center()));
    QTest::mousePress(&image(), Qt::LeftButton, {}, prise);
    QTest::mouseMove(&image(), prise - QPoint(40, 60));
    QTest::mouseRelease(&image(), Qt::LeftButton, {}, prise);
    EXPECT_TRUE(fenetre().isVisible()) << "a drag is no click";
    EXPECT_EQ(image().pos(), QPoint(-40, haut - 60));
    fenetre().resize(100, 80);
    EXPECT_TRUE(essais::attends([&] { return barre().width() == 6; })) << barre().width();
}

TEST_F(Affiche, IsEnlargedByCtrlAndTheWheelOrTheKeys) {
    ouvre({{"Alien", "Ridley Scott", "Angoisse", essais::octetsDImage(Qt::red, {200, 300})}});
    const QSize avant = fenetre().size();
    const auto roule = [&](int angle) {
        QWheelEvent cran(QPointF(9, 9), fenetre().mapToGlobal(QPointF(9, 9)), {}, {0, angle}, {}, Qt::ControlModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&fenetre(), &cran);
    };
    roule(120);
    EXPECT_EQ(image().size(), QSize(250, 375));
    EXPECT_TRUE(essai.texte("lblTaille").ends_with(" · 125 %"));
    roule(60);
    EXPECT_EQ(image().width(), 250) << "half a notch";
    roule(60);
    EXPECT_EQ(image().width(), 300);
    QTest::keyClick(&image(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(image().width(), 250);
    QTest::keyClick(&barre(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(image().size(), QSize(200, 300));
    EXPECT_EQ(fenetre().size(), avant);
}

TEST_F(Affiche, GoesFromFilmToFilmByKeysAndFollowsTheSheet) {
    ouvre({{"Alien", "Ridley Scott", "Angoisse", essais::octetsDImage(Qt::red, {200, 300})},
           {"Brazil", "Terry Gilliam", "Drame", essais::octetsDImage(Qt::blue, {300, 200})},
           {"Casque d'or", "Jacques Becker", "Drame", ""}});
    ASSERT_TRUE(image().hasFocus()) << "it is seen whole";
    touche(Qt::Key_Right);
    touche(Qt::Key_Right);
    EXPECT_EQ(fenetre().windowTitle(), "Casque D'Or");
    touche(Qt::Key_Left);
    EXPECT_EQ(fenetre().windowTitle(), "Brazil");
    EXPECT_TRUE(image().hasFocus()) << "again, after a film without a picture";
    touche(Qt::Key_Left);
    barre().setFocus();
    barre().setValue(40);
    touche(Qt::Key_PageDown);
    EXPECT_TRUE(fenetre().isVisible());
    EXPECT_EQ(fenetre().windowTitle(), "Brazil");
    EXPECT_EQ(essai.texte("Label1_0"), "Brazil");
    EXPECT_EQ(image().size(), QSize(300, 200));
    EXPECT_GT(milieu().blue(), 200);
    EXPECT_EQ(barre().value(), 0);
    touche(Qt::Key_PageDown);
    EXPECT_FALSE(image().isVisible()) << "no poster";
    EXPECT_EQ(essai.texte("lblTaille"), "Pas d'image");
    touche(Qt::Key_PageDown);
    EXPECT_FALSE(fenetre().isVisible()) << "no title below";
    essai.cliqueTitre("Alien");
    EXPECT_FALSE(fenetre().isVisible()) << "the sheet opens nothing";
    essai.clique("Image1");
    EXPECT_GT(milieu().red(), 200);
    essai.cliqueTitre("Brazil");
    EXPECT_GT(milieu().blue(), 200) << "an open viewer follows the sheet";
}

}  // namespace
