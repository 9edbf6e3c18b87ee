#include "edit/Command13_Click.h"
#include "edit/ValeursDeSaisie.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class Command13Test : public FenetreEdition {};

TEST_F(Command13Test, openAnEmptySheetWithWhatTheCatalogueKnows) {
    for (const auto& [genre, origine, production] : std::vector<std::array<dao::Valeur, 3>>{
             {"Péplum", "Italie", ""}, {"drame", dao::Valeur(), "MGM"}, {"", "États-Unis", "Mgm"}, {"Drame", "", ""}})
        ajoute(base.films, {{"Genre", genre}, {"Origine", origine}, {"Production", production}});
    for (auto& zone : ajout.Text3)
        zone.Text = "ancien";
    ajout.txtResume.Text = ajout.Combo2.Text = ajout.Combo4.Text = "ancien";
    ajout.cmdAjoutFilm.Caption = "Modifier";
    Command13_Click(c, 1);
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

    const auto ouvreApres = [this](const dao::Database::Version& avant, const std::string& genre, bool connue) {
        ajout.Combo2.Text = genre;
        ajoute(base.films, {{"Titre", "Aa"}, {"Genre", genre}, {"Origine", "Malte"}});
        if (connue) unFilmEstEcrit(c, avant);
        ajout.Combo2.AddItem("tapé");
        Command13_Click(c, 1);
    };
    ouvreApres(versionDesFilms(c), "drame", true);
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("drame", "Péplum"));
    EXPECT_THAT(ajout.Combo3.Items, ElementsAre("États-Unis", "Italie"))
        << "none the wiser: what is written behind the fields is not told";
    ouvreApres(versionDesFilms(c), "Fable", true);
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("drame", "Fable", "Péplum"));
    ouvreApres(versionDesFilms(c), "Conte", false);
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("Conte", "drame", "Fable", "Péplum"));
    EXPECT_THAT(ajout.Combo3.Items, ElementsAre("États-Unis", "Italie", "Malte"));
}

}  // namespace
