#include "browse/AfficheVolet.h"
#include "browse/Puces.h"
#include "unit/browse/Fenetre.h"

#include <gmock/gmock.h>

namespace {

using browse::ChampsPossession;
using testing::ElementsAre;

class Puces : public Fenetre {
  protected:
    [[nodiscard]] std::vector<std::string> montrees() const {
        std::vector<std::string> textes;
        for (const ecran::Bouton& puce : fiche.cmdPuce)
            if (puce.Visible) textes.push_back(puce.Caption);
        return textes;
    }
};

TEST_F(Puces, TellWhatTheBaseHoldsOfTheCopy) {
    ajouteFilm("Alien", {{"Realisateur", "R"}});
    ajouteFilm("Brazil", {{"Realisateur", "R"}});
    possede("Alien", "R",
            {{"Support", "DVD"},
             {"Rangement", " Salon, étagère 2\r\nà gauche "},
             {"Pret", "Paul Martin"},
             {"Reserve", "Hélène"},
             {"Date", "12/11/2026"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    clique("Alien");
    EXPECT_THAT(montrees(), ElementsAre("Possédé · DVD · Salon, étagère 2  à gauche",
                                        "Prêté à Paul Martin depuis le 12/11/2026", "Réservé pour Hélène"));
    EXPECT_TRUE(fiche.cmdPuce[0].FontBold);
    fiche.Combo7[2].Text = "VHS";  // typed, not stored
    EXPECT_EQ(montrees()[0].find("VHS"), std::string::npos);
    clique("Brazil");
    EXPECT_THAT(montrees(), ElementsAre("Non possédé"));
    EXPECT_FALSE(fiche.cmdPuce[0].FontBold);
}

TEST_F(Puces, LeaveOutWhatIsNotKnown) {
    ChampsPossession champs{.possede = true, .Text10 = {}, .Combo7 = {}};
    const auto texte = [&](browse::Puce puce) { return textePuce(champs, puce); };
    EXPECT_EQ(texte(browse::kPucePossede), "Possédé");
    champs.Text10[3] = "Grenier";
    EXPECT_EQ(texte(browse::kPucePossede), "Possédé · Grenier");
    champs.Text10[6] = "12/11/2026";
    champs.Combo7[0] = "  \n";
    EXPECT_EQ(texte(browse::kPucePret), "") << "a date lends to nobody";
    champs.Combo7[0] = "Paul";
    champs.Text10[6] = "cet été";
    EXPECT_EQ(texte(browse::kPucePret), "Prêté à Paul · cet été");
    champs.Text10[6] = "";
    EXPECT_EQ(texte(browse::kPucePret), "Prêté à Paul");
    champs.Combo7[1] = std::string(5'000'000, 'x');
    EXPECT_EQ(texte(browse::kPuceReserve), "Réservé pour " + std::string(100, 'x') + "…");
    champs.possede = false;
    EXPECT_EQ(texte(browse::kPucePossede), "Non possédé");
    EXPECT_EQ(texte(browse::kPucePret), "");
}

TEST_F(Puces, OpenThePageOfTheHoldingsAtTheirField) {
    ajouteFilm("Alien", {{"Realisateur", "R"}});
    ajouteFilm("Brazil", {{"Realisateur", "R"}});
    possede("Alien", "R", {{"Rangement", "Grenier"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    cmdPuce_Click(c, browse::kPucePossede);
    EXPECT_EQ(demandes.focus, "") << "no film";
    clique("Alien");
    const auto mene = [&](browse::Puce puce) {
        AfficheVolet(c, browse::kVoletGeneralites);
        cmdPuce_Click(c, puce);
        EXPECT_TRUE(fiche.frameAutresInfos[0].Visible);
        EXPECT_FALSE(fiche.frameGeneralites[0].Visible);
        return demandes.focus;
    };
    EXPECT_EQ(mene(browse::kPucePossede), "Text10_3") << "where something stands";
    EXPECT_EQ(mene(browse::kPucePret), "Combo7_0");
    EXPECT_EQ(mene(browse::kPuceReserve), "Combo7_1");
    fiche.Combo7[2].Text = "DVD";
    EXPECT_EQ(mene(browse::kPucePossede), "Combo7_2");
    clique("Brazil");
    EXPECT_EQ(mene(browse::kPucePossede), "Option1_0");
}

}  // namespace
