#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "parcours/Installation.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace {

using parcours::Execution;
using parcours::Installation;

TEST(Arret, WritesSettingsAndProgramsAndEmptiesTmpOnce) {
    const Installation installation;
    std::string seizePaires;
    for (int i = 1; i <= 16; ++i)
        seizePaires += "e" + std::to_string(i) + "\r\n/bin/p" + std::to_string(i) + "\r\n";
    installation.ecrit("Extensions.txt", seizePaires);
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    execution.etats.frmPrincipal = {12000, 9000};
    execution.etats.stockage.Text4.Text = "/img";
    ecran::choisit(execution.etats.stockage.Option3, 1);
    execution.etats.liste.ChoixTri.selectionne(3);
    execution.etats.liste.AffStats.Value = 1;
    execution.etats.fonctions.chkLancerConnexion.Value = 1;
    installation.ecrit("Tmp/ImageTMP.jpg", "affiche");
    installation.ecrit("Tmp/sans extension", "reste");

    EXPECT_THROW(execution.session.cmdStop_Click(), systeme::FinDuProgramme);
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "1\n/img\n12000\n9000\n3\nFilms.mdb\n1\n1\n");
    const std::string extensions = installation.lit("Extensions.txt");
    EXPECT_TRUE(extensions.starts_with("e1\n/bin/p1\ne2\n") && extensions.ends_with("e15\n/bin/p15\n")) << extensions;
    EXPECT_TRUE(std::filesystem::is_empty(installation.chemin("Tmp")));

    std::filesystem::remove(installation.chemin("Ambrelis.ini"));
    execution.session.Form_Unload();
    EXPECT_FALSE(installation.existe("Ambrelis.ini"));
}

TEST(Arret, AFileThatCannotBeWrittenIsToldAndTheRestIsDone) {
    const Installation installation;
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    for (const char* nom : {"Ambrelis.ini", "Extensions.txt"}) {
        std::filesystem::remove(installation.chemin(nom));
        std::filesystem::create_directory(installation.chemin(nom));
    }
    installation.ecrit("Tmp/reste", "");
    execution.boites.attendMsgBox(
        "Les réglages n'ont pas pu être enregistrés (" + installation.chemin("Ambrelis.ini") + ").",
        dialogues::kCritique);
    execution.boites.attendMsgBox(
        "La liste des logiciels externes n'a pas pu être enregistrée (" + installation.chemin("Extensions.txt") + ").",
        dialogues::kCritique);
    execution.session.Form_Unload();
    EXPECT_TRUE(std::filesystem::is_empty(installation.chemin("Tmp")));
}

// Damages the base being opened while the window paints, between the closing of the old one and its own opening.
class EcranSaboteur final : public ecran::Ecran {
  public:
    const Installation* installation = nullptr;
    bool respire() override { return true; }
    void rafraichit() override {
        if (installation) installation->ecrit("Autre.mdb", "plus une base");
    }
    void debutTravail() override {}
    void finTravail() override {}
};

TEST(Arret, AFailedChangeOfBaseEndsTheProgramAndWritesNoSettings) {
    const Installation installation;
    const std::string autre = installation.ecrit("Autre.mdb", installation.lit("Modele.dat"));
    Execution machine(installation.chemin());
    EcranSaboteur ecran;
    app::Session session({machine.boites, ecran, machine.images, machine.horloge, machine.documents, machine.programmes,
                          machine.volumes, installation.chemin()});
    session.Form_Load();
    session.execute(app::cmdConfigurer_Click);
    ecran.installation = &installation;
    machine.boites.attendFichier(
        {"Ouvrir/Créer une base de données", "Fichiers de base de données|*.mdb", installation.chemin(), true}, autre);
    machine.boites.attendMsgBox("Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)",
                                dialogues::kCritique);
    EXPECT_THROW(session.execute(app::cmdChargeOuvreBase_Click), systeme::FinDuProgramme);
    session.Form_Unload();
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "");
}

}  // namespace
