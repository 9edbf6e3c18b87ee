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

struct ModesAjoutTest : testing::Test {
    doubles::BaseDEssai essai;
    doubles::DialoguesScript dialogues;
    edit::EtatAjout ajout;
    ecran::Demandes demandes;
    edit::ListesDeSaisie listes{essai.base, ajout, dialogues};
    edit::Doublons doublons{essai.base, dialogues};
    edit::ModesAjout modes{ajout, demandes, listes, doublons};
};

TEST_F(ModesAjoutTest, openAnEmptySheetWithWhatTheCatalogueKnows) {
    for (const auto& [genre, origine, production] : std::vector<std::array<dao::Valeur, 3>>{
             {"Péplum", "Italie", ""}, {"drame", dao::Valeur(), "MGM"}, {"", "États-Unis", "Mgm"}, {"Drame", "", ""}})
        essai.ajoute(essai.base.films, {{"Genre", genre}, {"Origine", origine}, {"Production", production}});
    for (auto& zone : ajout.Text3)
        zone.Text = "ancien";
    ajout.txtResume.Text = ajout.Combo2.Text = ajout.Combo4.Text = "ancien";
    ajout.cmdAjoutFilm.Caption = "Modifier";
    modes.Command13_Click(1);
    EXPECT_FALSE(ajout.modeModifier());
    EXPECT_TRUE(ajout.Frame13.Visible && ajout.Command13[1].FontBold);
    EXPECT_FALSE(ajout.frameAjoutAuto.Visible || ajout.Command13[0].FontBold);
    EXPECT_EQ(ajout.Label5.Caption, "-");
    for (const auto& zone : ajout.Text3)
        EXPECT_EQ(zone.Text, "");
    EXPECT_EQ(ajout.txtResume.Text + ajout.Combo2.Text + ajout.Combo3.Text + ajout.Combo4.Text, "");
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("drame", "Péplum"));
    EXPECT_THAT(ajout.Combo3.Items, ElementsAre("États-Unis", "Italie"));
    EXPECT_THAT(ajout.Combo4.Items, ElementsAre("MGM"));
}

}  // namespace
