#include "app/Commandes.h"
#include "parcours/Installation.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using parcours::Execution;
using parcours::Installation;
using testing::ElementsAre;

constexpr const char* kDossierRefuse = "Le répertoire d'Ambrelis doit être en lecture-écriture";
constexpr const char* kBaseRefusee = "Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)";

std::string questionAutre(const std::string& base, const std::string& raison) {
    return "La base " + base + " n'a pas pu être ouverte : " + raison + ".\nVoulez-vous en choisir une autre ?";
}

TEST(Demarrage, AFirstStartMakesWhatIsMissingAndFillsTheLists) {
    const Installation installation;
    Execution premiere(installation.chemin());
    ASSERT_TRUE(premiere.demarre());

    EXPECT_TRUE(std::filesystem::is_empty(installation.chemin("Tmp")));
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "");
    EXPECT_TRUE(installation.existe("Films.mdb"));
    EXPECT_FALSE(installation.existe("Images"));

    const browse::EtatListe& liste = premiere.etats.liste;
    EXPECT_THAT(liste.ChoixZone.Items, ElementsAre("Mes films", "Tous les films", "Mes films non prêtés",
                                                   "Mes films prêtés", "Mes films réservés", "Films non possédés"));
    EXPECT_THAT(liste.ChoixTri.Items, ElementsAre("Tri par titre - 1", "Tri par titre - 2 ", "Tri par année",
                                                  "Tri par réalisateur", "Tri par genre", "Tri par origine",
                                                  "Tri par durée", "Tri par notation", "Tri par support"));
    EXPECT_EQ(liste.ChoixZone.Text, "Mes films");
    EXPECT_EQ(liste.ChoixTri.Text, "Tri par titre - 1");
    EXPECT_EQ(liste.Frame1.Caption, "Liste de films (0 titre)");
    EXPECT_EQ(liste.Label9[1].Caption, "0 personnel");

    const app::EtatFonctions& fonctions = premiere.etats.fonctions;
    EXPECT_THAT(fonctions.Label13.Caption, testing::MatchesRegex("v\\. [0-9]+\\.[0-9]+\\.[0-9]+"));
    EXPECT_EQ(fonctions.Label14[9].Caption, " - Multi-supressions :");
    EXPECT_THAT(fonctions.Combo6[0].Items, ElementsAre("avi", "mkv"));
    EXPECT_EQ(fonctions.Combo6[0].Text, "avi");
    EXPECT_EQ(fonctions.Combo6[1].Text, " Logiciel par défaut");
}

// Everything is wrong at first; each start tells the first thing that is, which is then mended.
TEST(Demarrage, RefusalsComeInOrderAndWriteNoSettings) {
    const Installation installation;
    const std::string reglages = "0\n\n0\n0\n3\nfilms.mdb\n0\n1\n";
    installation.ecrit("Ambrelis.ini", reglages);
    installation.ecrit("films.mdb", "ceci n'est pas une base");
    installation.ecrit("Tmp", "un fichier");
    std::filesystem::remove(installation.chemin("Modele.dat"));
    std::filesystem::remove(installation.chemin("Extensions.txt"));

    const auto refuse = [&](const std::string& message, const std::string& question = "") {
        Execution essai(installation.chemin());
        essai.boites.attendMsgBox(message, dialogues::kCritique);
        if (!question.empty()) essai.boites.attendMsgBox(question, dialogues::kQuestion, dialogues::kNon);
        EXPECT_FALSE(essai.demarre());
        EXPECT_EQ(installation.lit("Ambrelis.ini"), reglages) << message;
        EXPECT_FALSE(installation.existe("Extensions.txt")) << message;
    };
    refuse(kDossierRefuse);
    std::filesystem::remove(installation.chemin("Tmp"));
    refuse("Le fichier " + installation.chemin("Modele.dat") + " n'existe pas.");
    installation.ajouteModele();
    refuse(kBaseRefusee, questionAutre(installation.chemin("films.mdb"),
                                       "le fichier est endommagé ou n'est pas une base d'Ambrelis"));
    EXPECT_EQ(installation.lit("films.mdb"), "ceci n'est pas une base");
    std::filesystem::remove(installation.chemin("films.mdb"));
    refuse("Le fichier 'Extensions.txt' est absent.");
    installation.ecrit("Extensions.txt", "");
    Execution bonne(installation.chemin());
    EXPECT_TRUE(bonne.demarre());
}

// "Tmp" may be a link, and hold some: what they lead to is nobody's working file.
TEST(Demarrage, NothingThatTmpLeadsToIsTouched) {
    const Installation installation;
    installation.ecrit("ailleurs/victime.jpg", "victime");
    std::filesystem::create_directory_symlink(installation.chemin("ailleurs"), installation.chemin("Tmp"));
    for (int essai = 0; essai < 2; ++essai) {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        EXPECT_THROW(execution.session.cmdStop_Click(), systeme::FinDuProgramme);
        EXPECT_EQ(installation.lit("ailleurs/victime.jpg"), "victime");
        EXPECT_TRUE(std::filesystem::is_empty(installation.chemin("Tmp")));
        EXPECT_EQ(std::filesystem::symlink_status(installation.chemin("Tmp")).permissions(),
                  std::filesystem::perms::owner_all);
        std::filesystem::create_symlink(installation.chemin("ailleurs/victime.jpg"),
                                        installation.chemin("Tmp/tmp.tmp"));
    }
}

TEST(Demarrage, ASecondInstanceEndsSilentlyAndDisturbsNothing) {
    const Installation installation;
    const Installation autreDossier;
    {
        Execution premiere(installation.chemin());
        ASSERT_TRUE(premiere.demarre());
        const std::string temporaire = installation.ecrit("Tmp/ImageTMP.jpg", "affiche");
        EXPECT_FALSE(Execution(installation.chemin()).demarre());
        EXPECT_EQ(installation.lit("Tmp/ImageTMP.jpg"), "affiche");
        EXPECT_TRUE(Execution(autreDossier.chemin()).demarre());
    }
    EXPECT_TRUE(Execution(installation.chemin()).demarre()) << "after a crash nothing of the lock is left";
}

TEST(Demarrage, WhatAKilledRunWasWritingGoes) {
    const Installation installation;
    const doubles::DossierTemporaire bases;
    installation.ecrit("Ambrelis.ini",
                       "1\n" + installation.chemin("Affiches") + "\n0\n0\n0\n" + bases.chemin("b.mdb") + "\n");
    dao::DBEngine::CreateDatabase(bases.chemin("b.mdb"), db::schema());
    const std::string reste = ".ambrelis-999999999-1-1.tmp";
    const std::vector<std::string> places{installation.ecrit(reste, ""), installation.ecrit("Tmp/" + reste, ""),
                                          installation.ecrit("Affiches/" + reste, ""), bases.ecrit(reste, "")};
    Execution essai(installation.chemin());
    ASSERT_TRUE(essai.demarre());
    for (const std::string& place : places)
        EXPECT_FALSE(std::filesystem::exists(place)) << place;
}

TEST(Demarrage, SettingsAreApplied) {
    const Installation installation;
    installation.ecrit("Ambrelis.ini", "1\n/img/\n12000\n9000\n8\nAutre/Été.mdb\n1\n1\n");
    installation.ecrit("Autre/Été.mdb", installation.lit("Modele.dat"));
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    const app::Etats& etats = execution.etats;
    EXPECT_TRUE(etats.stockage.Option3[1].Value && !etats.stockage.Option3[0].Value);
    EXPECT_EQ(etats.stockage.Text4.Text, "/img/");
    EXPECT_TRUE(etats.stockage.Text4.Enabled && etats.stockage.cmdParcourir.Enabled);
    EXPECT_EQ(etats.frmPrincipal.Width, 12000);
    EXPECT_EQ(etats.frmPrincipal.Height, 9000);
    EXPECT_EQ(etats.liste.ChoixTri.Text, "Tri par support");
    EXPECT_EQ(etats.fonctions.chkLancerConnexion.Value, 1);
    EXPECT_EQ(etats.liste.AffStats.Value, 1);
    EXPECT_FALSE(installation.existe("Films.mdb"));
}

TEST(Demarrage, SettingsThatCannotHoldGiveWay) {
    const Installation installation;
    installation.ecrit("Ambrelis.ini", "0\n\n0\n0\n9\n/disparue.mdb\n0\n2\n");
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        EXPECT_EQ(execution.etats.liste.ChoixTri.ListIndex, 0);
        EXPECT_EQ(execution.etats.liste.AffStats.Value, 0);
        EXPECT_FALSE(execution.etats.stockage.Text4.Enabled || execution.etats.stockage.cmdParcourir.Enabled);
        execution.session.Form_Unload();
    }
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "0\n\n0\n0\n0\n/disparue.mdb\n0\n0\n");
    EXPECT_TRUE(installation.existe("films.mdb"));
}

void remetFilms(const Installation& installation, const char* base, const char* titre) {
    installation.ecrit(base, installation.lit("Modele.dat"));
    dao::DBEngine::OpenDatabase(installation.chemin(base))
        .Execute("INSERT INTO Films (Titre) VALUES ('" + std::string(titre) + "')");
}

TEST(Demarrage, ABaseWhoseDiskIsGoneIsNamedUntilItIsBack) {
    const Installation installation;
    const std::string absente = installation.chemin("disque/Ma collection.mdb");
    const std::string reglages = "0\n\n0\n0\n0\ndisque/Ma collection.mdb\n0\n0\n";
    installation.ecrit("Ambrelis.ini", reglages);
    const auto avis = [](const Execution& execution) { return execution.etats.avis.lblAvis.Caption; };
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        EXPECT_EQ(avis(execution), "La base " + absente + " est introuvable : " + installation.chemin("films.mdb") +
                                       " est ouverte à sa place.");
        execution.session.execute(app::cmdAvis_Click, 0);
        EXPECT_EQ(avis(execution), "La base " + absente +
                                       " est toujours introuvable. Branchez le disque où elle se trouve, puis "
                                       "réessayez.");
        execution.session.Form_Unload();
        EXPECT_EQ(installation.lit("Ambrelis.ini"), reglages);
    }
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        installation.ecrit("disque/Ma collection.mdb", "Ce fichier est une lettre.");
        execution.boites.attendMsgBox(kBaseRefusee, dialogues::kCritique);
        execution.session.execute(app::cmdAvis_Click, 0);
        EXPECT_EQ(avis(execution), "La base " + absente +
                                       " n'a pas pu être ouverte : le fichier est endommagé ou n'est pas une base "
                                       "d'Ambrelis.");
        std::filesystem::remove(absente);
        remetFilms(installation, "disque/Ma collection.mdb", "Été violent");
        execution.session.execute(app::cmdAvis_Click, 0);
        EXPECT_EQ(execution.etats.liste.Label9[0].Caption, "1 titre");
        EXPECT_FALSE(execution.etats.avis.frameAvis.Visible) << "it says nothing true any more";
        execution.session.Form_Unload();
        EXPECT_EQ(installation.lit("Ambrelis.ini"), reglages);
    }
    std::filesystem::remove(absente);
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    execution.session.execute(app::cmdAvis_Click, 1);  // the user stays with the other one
    EXPECT_FALSE(execution.etats.avis.frameAvis.Visible);
    execution.session.Form_Unload();
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "0\n\n0\n0\n0\nfilms.mdb\n0\n0\n");
}

TEST(Demarrage, AnEmptyBaseInThePlaceOfTheUsersIsTold) {
    const Installation installation;
    installation.ecrit("Ambrelis.ini", "0\n\n0\n0\n0\nFilms.mdb\n0\n0\n");
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    EXPECT_EQ(execution.etats.avis.lblAvis.Caption, "La base " + installation.chemin("Films.mdb") +
                                                        " n'existait plus : une base vide a été créée à sa place.");
    const Installation neuve;
    Execution premiere(neuve.chemin());
    ASSERT_TRUE(premiere.demarre());
    EXPECT_FALSE(premiere.etats.avis.frameAvis.Visible) << "a first start loses nothing";
}

// The question comes back until a base opens.
TEST(Demarrage, ABaseThatCannotBeOpenedLeavesTheChoiceOfAnother) {
    const Installation installation;
    installation.ecrit("Ambrelis.ini", "0\n\n0\n0\n0\nCollection.mdb\n0\n0\n");
    installation.ecrit("Collection.mdb", installation.lit("Modele.dat"));
    installation.ecrit("lettre.mdb", "Ce fichier est une lettre.");
    remetFilms(installation, "Autre.mdb", "Été violent");
    const auto tenue = dao::DBEngine::OpenDatabase(installation.chemin("Collection.mdb"), true);
    const dialogues::DemandeFichier choix{"Ouvrir/Créer une base de données", "Fichiers de base de données|*.mdb",
                                          installation.chemin(), true};
    const std::string question =
        questionAutre(installation.chemin("Collection.mdb"), "elle est utilisée par un autre programme");
    {
        Execution abandon(installation.chemin());
        abandon.boites.attendMsgBox(kBaseRefusee, dialogues::kCritique);
        abandon.boites.attendMsgBox(question, dialogues::kQuestion, dialogues::kOui);
        abandon.boites.attendFichier(choix, "");
        EXPECT_FALSE(abandon.demarre());
    }
    Execution execution(installation.chemin());
    doubles::DialoguesScript& boites = execution.boites;
    boites.attendMsgBox(kBaseRefusee, dialogues::kCritique);
    boites.attendMsgBox(question, dialogues::kQuestion, dialogues::kOui);
    boites.attendFichier(choix, installation.chemin("lettre.mdb"));
    boites.attendMsgBox(kBaseRefusee, dialogues::kCritique);
    boites.attendMsgBox(question, dialogues::kQuestion, dialogues::kOui);
    boites.attendFichier(choix, installation.chemin("Autre"));
    ASSERT_TRUE(execution.demarre());
    EXPECT_EQ(execution.etats.liste.Label9[0].Caption, "1 titre");
    execution.session.Form_Unload();
    EXPECT_EQ(installation.lit("Ambrelis.ini"), "0\n\n0\n0\n0\nAutre.mdb\n0\n0\n");
}

TEST(Demarrage, AProgramFolderWhoseNameIsNoUtf8IsRefusedAndUntouched) {
    const Installation installation;
    const std::string dossier = installation.chemin("Vid\xE9oth\xE8que/");
    std::filesystem::create_directory(dossier);
    Execution execution(dossier);
    execution.boites.attendMsgBox(
        "Le nom du répertoire d'Ambrelis n'est pas écrit en UTF-8 : le programme ne peut pas y travailler. "
        "Renommez-le, "
        "puis recommencez.\n" +
            dossier,
        dialogues::kCritique);
    EXPECT_FALSE(execution.demarre());
    EXPECT_FALSE(std::filesystem::exists(dossier + "Tmp"));
}

TEST(Demarrage, GarbageSettingsStartTheProgram) {
    for (const std::string& octets :
         {std::string("\x7f"
                      "ELF\0\x01\xff\xfe\n\0\n",
                      11),
          std::string(10'000'000, '\xE9'), std::string(10'000'000, '\n'), std::string("0\n\n0\n0\n0\nTmp\n")}) {
        const Installation installation;
        installation.ecrit("Ambrelis.ini", octets);
        Execution execution(installation.chemin());
        EXPECT_TRUE(execution.demarre());
    }
}

TEST(Demarrage, SettingsThatCannotBeReadAreToldAndLeftAlone) {
    const Installation installation;
    std::filesystem::create_directory(installation.chemin("Ambrelis.ini"));
    Execution execution(installation.chemin());
    execution.boites.attendMsgBox("Les réglages n'ont pas pu être lus (" + installation.chemin("Ambrelis.ini") + ").",
                                  dialogues::kExclamation);
    ASSERT_TRUE(execution.demarre());
    execution.session.Form_Unload();
}

}  // namespace
