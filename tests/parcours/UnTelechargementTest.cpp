#include "acquire/cmdAjoutAuto_Click.h"
#include "doubles/Rapatrix.h"
#include "parcours/Collectionneur.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

// A session with the stand-in of the downloader, started for good, beside it.
struct UnTelechargement : parcours::Collectionneur {
    systeme::ProgrammesSysteme programmes;
    const doubles::Rapatrix rapatrix{installation};

    void SetUp() override {
        execution.emplace(installation.chemin(), &programmes);
        ASSERT_TRUE(execution->demarre());
        session().cmdAfficherFonctions_Click();
    }
};

TEST_F(UnTelechargement, FillsTheBaseAndShowsTheFilmsOfTheDay) {
    EXPECT_TRUE(etats().ajout.cmdTelecharge.Enabled);
    demande(acquire::questionPossession(2), dialogues::kNon);
    demande(parcours::kQuestionRessemblance, dialogues::kNon);
    execution->boites.attendMsgBox("2 films ajoutés.\n- Image manquante :\n" + installation.chemin("Tmp/2.jpg"),
                                   dialogues::kInformation);
    etats().fonctions.chkLancerConnexion.Value = 1;
    etats().ajout.txtRechInternet.Text = "1983";
    ecran::choisit(etats().ajout.OptionTelecharge, 3);
    session().txtRechInternet_KeyDown(13, 0);
    EXPECT_THAT(rapatrix.recu(), testing::AllOf(testing::HasSubstr("?anneemin=1983&anneemax=1983\r\n"),
                                                testing::HasSubstr("\r\nLANCER_TELECHARGEMENT_DEMARRAGE=O\r\n")));
    EXPECT_EQ(comptes(), "2 titres, 0 personnel");
    EXPECT_THAT(parcours::arbre(etats()), ElementsAre("Le Cercle Rouge", "L'Été"));
    parcours::clique(*execution, "Le Cercle Rouge");
    EXPECT_EQ(parcours::filmMontre(etats()), "Le Cercle Rouge de Jean-Pierre Melville");
    EXPECT_EQ(installation.lit("Tmp/ImageTMP.jpg"), "\xFF\xD8 une affiche");
}

}  // namespace
