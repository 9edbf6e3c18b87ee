#include "parcours/Gestes.h"

#include <gtest/gtest.h>

namespace {

// The panel of the deletion by ticking, among the others of the right side.
TEST(PanneauDeMultiSuppression, StaysWhileFilmsAreLookedAtAndPutsTheBoxesAwayWhenLeft) {
    parcours::Installation installation;
    parcours::Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
    const browse::EtatPanneaux& panneaux = etats.panneaux;
    parcours::ecritFiches(installation);
    ASSERT_TRUE(execution.demarre());
    parcours::importe(execution, installation);
    parcours::choisitTri(execution, 0);
    const auto active = [&] {
        session.cmdMultiSuppress_Click();
        ecran::choisit(etats.fonctions.Option4, 1);
        session.Option4_Click();
        EXPECT_TRUE(etats.liste.TreeView1.Checkboxes);
    };
    const auto verifieRange = [&] {
        EXPECT_FALSE(panneaux.frameMultiSuppression.Visible || etats.liste.TreeView1.Checkboxes ||
                     etats.fonctions.Option4[1].Value || etats.fonctions.cmdSupprTitresSelect.Visible);
    };
    active();
    EXPECT_EQ(etats.demandes.focus, "Option4_0");
    parcours::clique(execution, "Le Samouraï");
    EXPECT_TRUE(panneaux.frameFiche.Visible && panneaux.frameMultiSuppression.Visible);
    EXPECT_EQ(parcours::filmMontre(etats), "Le Samouraï de Jean-Pierre Melville");
    parcours::clique(execution, "E");
    EXPECT_TRUE(!panneaux.frameFiche.Visible && panneaux.frameMultiSuppression.Visible);
    EXPECT_FALSE(panneaux.framePresentation.Visible);

    parcours::clique(execution, "Le Samouraï");
    session.QuittePanneau();
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    verifieRange();
    active();
    session.cmdConfigurer_Click();
    verifieRange();
}

}  // namespace
