#include "doubles/DialoguesScript.h"
#include "edit/Command13_Click.h"
#include "edit/RaffraichitBoitesDeroulantes.h"
#include "unit/edit/BaseDEssai.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(BoitesDeroulantes, listWhatTheHoldingsKnowAndKeepWhatIsBeingTyped) {
    doubles::BaseDEssai essai;
    doubles::DialoguesScript dialogues;
    browse::EtatFiche fiche;
    for (const auto& [pret, support, reserve] : std::vector<std::array<dao::Valeur, 3>>{
             {"Zoé", "DVD", ""}, {"", "K7", dao::Valeur()}, {"Élodie", "dvd", "Paul"}, {dao::Valeur(), "", "Paul"}})
        essai.ajoute(essai.base.personnel, {{"Pret", pret}, {"Support", support}, {"Reserve", reserve}});
    fiche.Combo7[2].Items = {"ancien"};
    fiche.Combo7[2].selectionne(0);
    fiche.Combo7[0].Text = "Zo";
    edit::BoitesDeroulantes boites(essai.base, fiche, dialogues);
    boites.RaffraichitBoitesDeroulantes();
    boites.RaffraichitBoitesDeroulantes();
    EXPECT_THAT(fiche.Combo7[0].Items, ElementsAre("Élodie", "Zoé"));
    EXPECT_THAT(fiche.Combo7[1].Items, ElementsAre("Paul"));
    EXPECT_THAT(fiche.Combo7[2].Items, ElementsAre("DVD", "K7"));
    EXPECT_EQ(fiche.Combo7[0].Text, "Zo");
    EXPECT_EQ(fiche.Combo7[2].Text, "ancien");
    EXPECT_EQ(fiche.Combo7[2].ListIndex, -1);
}

TEST(ModesAjout, openTheAutomaticPageBackInAddMode) {
    edit::EtatAjout ajout;
    ecran::Demandes demandes;
    ajout.cmdAjoutFilm.Caption = "Modifier";
    ajout.Frame13.Visible = true;
    ajout.Command13[1].FontBold = true;
    edit::ModesAjout(ajout, demandes).Command13_Click(0);
    EXPECT_FALSE(ajout.modeModifier());
    EXPECT_TRUE(ajout.frameAjoutAuto.Visible);
    EXPECT_FALSE(ajout.Frame13.Visible);
    EXPECT_TRUE(ajout.Command13[0].FontBold);
    EXPECT_FALSE(ajout.Command13[1].FontBold);
    EXPECT_NE(ajout.Label5.Caption, "-");
    EXPECT_EQ(demandes.focus, "txtRechInternet");
}

}  // namespace
