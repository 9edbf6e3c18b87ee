#include "ui/Liaison.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

TEST(Liaison, TextThatTheWidgetCannotHoldIsCarriedThrough) {
    ecran::ZoneTexte etat;
    QLineEdit ligne;
    ui::Liaison liaison;
    liaison.lie(etat, &ligne);
    const std::string deuxLignes = "Première\r\nSeconde\xff";
    etat.Text = deuxLignes;
    liaison.ecrit();
    liaison.lit();
    EXPECT_EQ(etat.Text, deuxLignes);

    ligne.setText("L'œuvre & l'été");
    liaison.lit();
    EXPECT_EQ(etat.Text, "L'œuvre & l'été");
}

TEST(Liaison, AListKeepsItsTextApartFromItsIndex) {
    ecran::Liste etat;
    QComboBox liste;
    liste.setEditable(true);
    ui::Liaison liaison;
    liaison.lie(etat, &liste);
    etat.Items = {"DVD", "Blu-ray"};
    etat.Text = "Cassette";
    liaison.ecrit();
    EXPECT_EQ(liste.currentText(), "Cassette");
    EXPECT_EQ(liste.currentIndex(), -1);

    liste.setCurrentIndex(1);
    liaison.lit();
    EXPECT_EQ(etat.ListIndex, 1);
    EXPECT_EQ(etat.Text, "Blu-ray");
    liste.setEditText("blu-ray usé");
    liaison.lit();
    EXPECT_EQ(etat.ListIndex, -1);
    EXPECT_EQ(etat.Text, "blu-ray usé");
}

TEST(Liaison, WritingShowsTheStateAndRaisesNoEvent) {
    ecran::CaseACocher coche;
    std::array<ecran::BoutonOption, 2> options;
    ecran::Liste liste;
    ecran::Bouton bouton;
    QWidget parent;
    QCheckBox caseQt;
    auto* premier = new QRadioButton(&parent);
    auto* second = new QRadioButton(&parent);
    QComboBox listeQt;
    QPushButton boutonQt("&Ajouter");
    QSignalSpy bascule(&caseQt, &QCheckBox::toggled), choix(&listeQt, &QComboBox::currentIndexChanged),
        clic(premier, &QRadioButton::clicked);
    ui::Liaison liaison;
    liaison.lie(coche, &caseQt);
    liaison.lie(options[0], premier);
    liaison.lie(options[1], second);
    liaison.lie(liste, &listeQt);
    liaison.lie(bouton, &boutonQt);

    coche.Value = 1;
    ecran::choisit(options, 1);
    liste.Items = {"a", "b"};
    liste.selectionne(1);
    bouton.FontBold = true;
    bouton.Enabled = false;
    liaison.ecrit();
    EXPECT_TRUE(caseQt.isChecked() && second->isChecked() && boutonQt.font().bold() && !boutonQt.isEnabled());
    EXPECT_EQ(boutonQt.text(), "&Ajouter") << "an empty caption leaves the window's own";
    EXPECT_EQ(listeQt.currentIndex(), 1);
    ecran::choisit(options, 0);
    bouton.Caption = "Tom & Jerry";
    liaison.ecrit();
    EXPECT_TRUE(premier->isChecked() && !second->isChecked());
    EXPECT_EQ(boutonQt.text(), "Tom && Jerry");
    EXPECT_EQ(bascule.count() + choix.count() + clic.count(), 0);

    second->click();
    liaison.lit();
    EXPECT_TRUE(options[1].Value && !options[0].Value);
}

TEST(Liaison, AWidgetTiedLateShowsItsValueAndOnlyChangesAreWritten) {
    ecran::Etiquette etat;
    etat.Caption = "12 titres";
    etat.Visible = false;
    QLabel etiquette;
    ui::Liaison liaison;
    liaison.lie(etat, &etiquette);
    EXPECT_EQ(etiquette.text(), "12 titres");
    EXPECT_TRUE(etiquette.isHidden());
    etiquette.setText("intact");
    liaison.ecrit();
    EXPECT_EQ(etiquette.text(), "intact");
}

// A page that is built when it is first shown.
TEST(Liaison, WhatIsBuiltWhileTheStateIsShownFollowsAtOnce) {
    ui::Liaison liaison;
    ecran::Etiquette etat;
    QLabel etiquette;
    int suites = 0;
    liaison.apresEcriture([&, reste = std::string(50, 'r')] {
        for (int i = suites; i < 200; ++i)
            liaison.apresEcriture([&suites] { ++suites; });
        liaison.lie(etat, &etiquette);
        EXPECT_EQ(reste, std::string(50, 'r')) << "it is still there itself";
    });
    liaison.ecrit();
    EXPECT_EQ(suites, 200);
}

}  // namespace
