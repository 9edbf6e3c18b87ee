#include "browse/RaffraichitBoitesDeroulantes.h"
#include "unit/browse/Fenetre.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class BoitesDeroulantes : public Fenetre {};

TEST_F(BoitesDeroulantes, listWhatTheHoldingsKnowAndKeepWhatIsBeingTyped) {
    for (const auto& [pret, support, reserve] : std::vector<std::array<dao::Valeur, 3>>{
             {"Zoé", "DVD", ""}, {"", "K7", dao::Valeur()}, {"Élodie", "dvd", "Paul"}, {dao::Valeur(), "", "Paul"}})
        ajoute(base.personnel, {{"Pret", pret}, {"Support", support}, {"Reserve", reserve}});
    fiche.Combo7[2].Items = {"ancien"};
    fiche.Combo7[2].selectionne(0);
    fiche.Combo7[0].Text = "Zo";
    RaffraichitBoitesDeroulantes(c);
    RaffraichitBoitesDeroulantes(c);
    EXPECT_THAT(fiche.Combo7[0].Items, ElementsAre("Élodie", "Zoé"));
    EXPECT_THAT(fiche.Combo7[1].Items, ElementsAre("Paul"));
    EXPECT_THAT(fiche.Combo7[2].Items, ElementsAre("DVD", "K7"));
    EXPECT_EQ(fiche.Combo7[0].Text, "Zo");
    EXPECT_EQ(fiche.Combo7[2].Text, "ancien");
    EXPECT_EQ(fiche.Combo7[2].ListIndex, -1);
}

}  // namespace
