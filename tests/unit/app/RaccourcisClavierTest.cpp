#include "parcours/Gestes.h"

#include <array>
#include <functional>

#include <gtest/gtest.h>

namespace {

using parcours::Execution;
using parcours::Installation;

constexpr const char* kAbandon = "La fiche n'est pas enregistrée.\nVoulez-vous abandonner votre saisie ?";

struct RaccourcisClavier : testing::Test {
    void SetUp() override {
        parcours::ecritFiches(installation);
        ASSERT_TRUE(execution.demarre());
        parcours::importe(execution, installation);
        parcours::choisitZone(execution, 0);
    }
    [[nodiscard]] bool saisieMontree() const {
        return etats.panneaux.frameListeFonctions.Visible && etats.ajout.Frame13.Visible;
    }

    Installation installation;
    Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
    doubles::DialoguesScript& boites = execution.boites;
};

TEST_F(RaccourcisClavier, LeavingAPanelGoesBackToTheSheetElseToThePresentation) {
    session.cmdConfigurer_Click();
    session.QuittePanneau();
    EXPECT_TRUE(etats.panneaux.framePresentation.Visible);

    parcours::clique(execution, "Le Samouraï");
    session.cmdAutresInfos_Click();
    static constexpr std::array<void (app::Session::*)(), 3> kOuvertures{&app::Session::cmdFonctionRecherche_Click,
                                                                         &app::Session::cmdMultiSuppress_Click,
                                                                         &app::Session::cmdModifierTitre_Click};
    for (const auto ouvre : kOuvertures) {
        std::invoke(ouvre, session);
        session.QuittePanneau();
        EXPECT_TRUE(etats.panneaux.frameFiche.Visible && etats.fiche.frameAutresInfos[0].Visible);
        EXPECT_FALSE(etats.panneaux.frameListeFonctions.Visible || etats.panneaux.frameRecherche.Visible);
        EXPECT_EQ(etats.demandes.focus, "TreeView1");
    }

    session.cmdConfigurer_Click();
    session.Form_Resize(true);
    session.QuittePanneau();
    EXPECT_TRUE(etats.fiche.frameGeneralites[0].Visible && etats.fiche.frameAutresInfos[0].Visible)
        << "the window grew meanwhile";
}

TEST_F(RaccourcisClavier, WhatWasTypedIsNotLostWithoutAQuestion) {
    session.SaisieManuelle();
    EXPECT_EQ(etats.demandes.focus, "Text3_0");
    etats.ajout.Text3[0].Text = "Playtime";
    session.SaisieManuelle();
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Playtime") << "the entry that was begun goes on";
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kNon);
    session.QuittePanneau();
    EXPECT_TRUE(saisieMontree());
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kOui);
    session.QuittePanneau();
    EXPECT_TRUE(etats.panneaux.framePresentation.Visible);

    session.SaisieManuelle();
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Playtime");
    etats.ajout.Text3[1].Text = "Jacques Tati";
    boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin("Images/")},
                         "");
    session.cmdAjoutFilm_Click();
    session.QuittePanneau();
    EXPECT_FALSE(saisieMontree()) << "a stored film is no longer at stake";

    parcours::clique(execution, "Playtime");
    session.ModifieFilmAffiche();
    etats.ajout.Combo2.Text = "Comédie";
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kNon);
    session.SaisieManuelle();
    EXPECT_TRUE(etats.ajout.modeModifier());
}

TEST_F(RaccourcisClavier, OnlyTheFilmOfAVisibleSheetIsCorrectedOrDeleted) {
    parcours::clique(execution, "Le Samouraï");
    session.cmdFonctionRecherche_Click();
    session.ModifieFilmAffiche();
    session.SupprimeFilmAffiche();
    EXPECT_TRUE(etats.panneaux.frameRecherche.Visible);

    session.QuittePanneau();
    session.ModifieFilmAffiche();
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Le Samouraï");
    session.QuittePanneau();
    boites.attendMsgBox("Voulez-vous vraiment supprimer ce titre ?", dialogues::kQuestion, dialogues::kOui);
    session.SupprimeFilmAffiche();
    EXPECT_EQ(etats.liste.Label9[0].Caption, "3 titres");
}

}  // namespace
