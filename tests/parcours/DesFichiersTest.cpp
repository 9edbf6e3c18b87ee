#include "parcours/Gestes.h"

#include <gtest/gtest.h>

namespace {

using parcours::Execution;
using parcours::Installation;

TEST(DesFichiers, AreAttachedFoundElsewhereAndOpened) {
    const Installation installation;
    parcours::ecritFiches(installation);
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    parcours::importe(execution, installation);
    browse::EtatFiche& fiche = execution.etats.fiche;
    parcours::clique(execution, "Le Cercle Rouge");
    EXPECT_FALSE(fiche.cmdFichiersFilm.Visible);
    fiche.Text10[0].Text = "D:\\Films\\L'été & \"vous\".avi";
    fiche.Text10[2].Text = "/media/eve/PERDU/Bonus.mkv";
    execution.session.Text10_Change(0);
    execution.session.cmdValiderInfosPossessions_Click();
    EXPECT_TRUE(fiche.cmdFichiersFilm.Visible && fiche.cmdFichiersFilm.Enabled);
    EXPECT_EQ(fiche.captionFichiers, "Le Cercle Rouge");
    EXPECT_EQ(fiche.Command1[0].Caption, "L'été & \"vous\".avi");
    EXPECT_EQ(fiche.Command1[1].Caption, "Fichier 2");
    EXPECT_TRUE(fiche.Command1[0].Enabled && !fiche.Command1[1].Enabled && fiche.Command1[2].Enabled);

    execution.session.cmdFichiersFilm_Click();
    EXPECT_TRUE(execution.etats.fichiers.Visible);
    execution.volumes.volumes = {{installation.chemin("usb")}};
    const std::string film = installation.ecrit("usb/Films/L'été & \"vous\".avi", "film");
    execution.session.Command1_Click(0);
    ASSERT_EQ(execution.programmes.lances.size(), 1u);
    EXPECT_EQ(execution.programmes.lances[0].arguments, (std::vector<std::string>{"/usr/bin/mpv", film}));
    execution.boites.attendMsgBox("Le fichier /media/eve/PERDU/Bonus.mkv n'a pas été trouvé !", dialogues::kCritique);
    execution.session.Command1_Click(2);

    parcours::clique(execution, "Sans Rien");
    EXPECT_FALSE(fiche.cmdFichiersFilm.Visible || fiche.Command1[0].Enabled) << "the window follows the film";
    EXPECT_EQ(fiche.Command1[0].Caption, "Fichier 1");
    execution.session.Command1_Click(0);
    EXPECT_EQ(execution.programmes.lances.size(), 1u);
    execution.session.Command1_Click(3);
    EXPECT_FALSE(execution.etats.fichiers.Visible);
}

}  // namespace
