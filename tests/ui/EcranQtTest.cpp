#include "ui/EcranQt.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// A window with its "Annuler", another button and a text box, and a long work in it.
struct EcranQtTest : testing::Test {
    EcranQtTest() {
        auto* boite = new QVBoxLayout(&fenetre);
        for (QWidget* widget : std::initializer_list<QWidget*>{annuler, autre, texte})
            boite->addWidget(widget);
        ecran.laissePasser(annuler);
        QObject::connect(annuler, &QPushButton::clicked, &ecran, &ui::EcranQt::demandeArret);
        QObject::connect(autre, &QPushButton::clicked, &fenetre, [this] { ++clics; });
        liaison.lie(etat, &suivi);
        fenetre.show();
    }
    // The gesture arrives while the work breathes.
    bool respireAvec(const std::function<void()>& geste) {
        QTimer::singleShot(0, &fenetre, geste);
        return ecran.respire();
    }

    ui::Liaison liaison;
    ui::EcranQt ecran{liaison};
    QWidget fenetre;
    QPushButton* annuler = new QPushButton("Annuler");
    QPushButton* autre = new QPushButton("Autre");
    QLineEdit* texte = new QLineEdit;
    ecran::ZoneTexte etat;
    QLineEdit suivi;
    int clics = 0;
};

TEST_F(EcranQtTest, WorkShowsItsStateAndTakesNoOtherInput) {
    ecran::Travail travail(ecran);
    etat.Text = "Le Cercle rouge";
    EXPECT_TRUE(respireAvec([this] {
        QTest::mouseClick(autre, Qt::LeftButton);
        QTest::keyClicks(texte, "abc");
    }));
    EXPECT_EQ(suivi.text(), "Le Cercle rouge");
    EXPECT_EQ(clics, 0);
    EXPECT_EQ(texte->text(), "");
}

TEST_F(EcranQtTest, AnnulerOrEscapeStopsTheWorkAndNotTheNextOne) {
    for (const bool touche : {false, true}) {
        {
            ecran::Travail travail(ecran);
            EXPECT_FALSE(respireAvec(
                [&] { touche ? QTest::keyClick(texte, Qt::Key_Escape) : QTest::mouseClick(annuler, Qt::LeftButton); }));
            EXPECT_FALSE(ecran.respire()) << "it stays asked for until the work has ended";
        }
        ecran::Travail suivant(ecran);
        EXPECT_TRUE(ecran.respire());
    }
    QTest::mouseClick(autre, Qt::LeftButton);
    EXPECT_EQ(clics, 1) << "input is free again after the work";
}

}  // namespace
