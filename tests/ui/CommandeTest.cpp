#include "db/Requete.h"
#include "doubles/DialoguesScript.h"
#include "platform/dao/ErreurDao.h"
#include "platform/systeme/FinDuProgramme.h"
#include "ui/Commande.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using ui::Commande;

struct CommandeTest : testing::Test {
    ui::Liaison liaison;
    doubles::DialoguesScript boites;
    Commande commande{liaison, boites};
};

TEST_F(CommandeTest, ReadsTheWidgetsBeforeAndShowsTheStateAfter) {
    ecran::ZoneTexte etat;
    QLineEdit ligne;
    liaison.lie(etat, &ligne);
    ligne.setText("tapé");
    EXPECT_EQ(commande.execute([&] { etat.Text += " puis lu"; }), Commande::Issue::Faite);
    EXPECT_EQ(ligne.text(), "tapé puis lu");
}

TEST_F(CommandeTest, NoneStartsWhileAnotherRuns) {
    EXPECT_EQ(commande.execute([&] { EXPECT_EQ(commande.execute([] { FAIL(); }), Commande::Issue::Refusee); }),
              Commande::Issue::Faite);
    EXPECT_FALSE(commande.enCours());
}

TEST_F(CommandeTest, WhatACommandThrowsIsToldAndTheProgramGoesOn) {
    boites.attendMsgBox("Erreur 3167 : Enregistrement supprimé.");
    EXPECT_EQ(commande.execute([] { throw dao::ErreurDao(3167, "Enregistrement supprimé."); }),
              Commande::Issue::Echouee);
    EXPECT_EQ(commande.execute([] { throw db::RequeteEchouee{}; }), Commande::Issue::Echouee);
    boites.attendMsgBox("Cette commande n'a pas pu se terminer.\n(panne)");
    EXPECT_EQ(commande.execute([] { throw std::runtime_error("panne"); }), Commande::Issue::Echouee);
    boites.attendMsgBox("Cette commande n'a pas pu se terminer.");
    EXPECT_EQ(commande.execute([] { throw 3; }), Commande::Issue::Echouee);
    EXPECT_EQ(commande.execute([] {}), Commande::Issue::Faite);
}

TEST_F(CommandeTest, TheEndOfTheProgramIsTheLastCommand) {
    QSignalSpy fin(&commande, &Commande::finDuProgramme);
    commande.execute([] { throw systeme::FinDuProgramme{}; });
    EXPECT_EQ(fin.count(), 1);
    EXPECT_EQ(commande.execute([] { FAIL(); }), Commande::Issue::Refusee);
}

}  // namespace
