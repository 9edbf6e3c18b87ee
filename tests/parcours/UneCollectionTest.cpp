#include "parcours/Gestes.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;

constexpr const char* kTriRefuse =
    "Le tri par support n'est pas possible pour ce cas-là : il faut que la recherche soit sur les titres possédés (Mes "
    "Films).";

class UneCollection : public testing::Test {
  protected:
    UneCollection() {
        ecritFiches(installation);
        if (!execution.demarre()) ADD_FAILURE() << "the start failed";
        importe(execution, installation);
    }

    const Installation installation;
    Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
};

TEST_F(UneCollection, AnImportShowsWhatItAdded) {
    EXPECT_EQ(etats.liste.ChoixZone.Text, "Recherche");
    EXPECT_THAT(arbre(etats), ElementsAre("Été Violent", "Le Cercle Rouge", "Le Samouraï", "Sans Rien"));
    EXPECT_EQ(etats.liste.Label9[0].Caption, "4 titres");
    EXPECT_EQ(etats.liste.Label9[1].Caption, "4 personnels");
    EXPECT_THAT(etats.fiche.Combo7[2].Items, ElementsAre("DVD"));
}

TEST_F(UneCollection, IsGroupedByEachSort) {
    choisitZone(execution, 0);
    choisitTri(execution, 0);
    EXPECT_THAT(arbre(etats),
                ElementsAre("E", "  Été Violent", "L", "  Le Cercle Rouge", "  Le Samouraï", "S", "  Sans Rien"));
    choisitTri(execution, 2);
    EXPECT_THAT(arbre(etats), ElementsAre(" Hors tri !", "  Sans Rien", "1959", "  Été Violent", "1967",
                                          "  Le Samouraï", "1970", "  Le Cercle Rouge"));
    choisitTri(execution, 3);
    EXPECT_THAT(arbre(etats), ElementsAre("Jean-Pierre Melville", "  Le Cercle Rouge", "  Le Samouraï", "Non défini",
                                          "  Sans Rien", "Valerio Zurlini", "  Été Violent"));
    choisitTri(execution, 8);
    EXPECT_THAT(arbre(etats), ElementsAre("DVD", "  Été Violent", "  Le Cercle Rouge", "  Le Samouraï", "  Sans Rien"));
    etats.liste.AffStats.Value = 1;
    session.AffStats_Click();
    EXPECT_EQ(arbre(etats).front(), "DVD (100 %)");
}

TEST_F(UneCollection, EveryZoneAndSortListsItsFilms) {
    const std::vector<std::string> captions{"Liste de films (4 titres)", "Liste de films (4 titres)",
                                            "Liste de films (4 titres)", "Liste de films (0 titre)",
                                            "Liste de films (0 titre)",  "Liste de films (0 titre)"};
    for (int zone = 0; zone < 6; ++zone) {
        choisitTri(execution, 0);
        choisitZone(execution, zone);
        for (int tri = 0; tri < 9; ++tri) {
            const bool refuse = tri == 8 && (zone == 1 || zone == 5);
            if (refuse) execution.boites.attendMsgBox(kTriRefuse, dialogues::kExclamation);
            choisitTri(execution, tri);
            EXPECT_EQ(etats.liste.Frame1.Caption, captions[static_cast<std::size_t>(zone)]) << zone << " " << tri;
        }
    }
}

TEST_F(UneCollection, AClickShowsTheSheetWithItsPosterOrNone) {
    for (const char* titre : {"Le Cercle Rouge", "Sans Rien", "Le Cercle Rouge", "Été Violent"}) {
        session.TreeView1_NodeClick(noeud(etats, titre));
        EXPECT_TRUE(etats.panneaux.frameFiche.Visible);
        EXPECT_EQ(etats.fiche.Label1[0].Caption, titre);
        const bool aUneAffiche = std::string(titre) == "Le Cercle Rouge";
        EXPECT_EQ(etats.fiche.Image1.vide, !aUneAffiche) << titre;
        EXPECT_EQ(execution.images.courante, aUneAffiche ? installation.lit("Tmp/ImageTMP.jpg") : "") << titre;
    }
    EXPECT_EQ(etats.fiche.Label1[2].Caption, "Production (1959)");
    EXPECT_EQ(etats.fiche.Text1.Text, "Un résumé.");
    EXPECT_EQ(etats.fiche.Combo7[2].Text, "DVD");
}

TEST_F(UneCollection, ThePagesFollowTheLayout) {
    const auto pages = [&] {
        const browse::EtatFiche& fiche = etats.fiche;
        return std::string(fiche.frameGeneralites[0].Visible ? "G" : "-") +
               (fiche.frameAutresInfos[1].Visible ? "A" : "-") + (fiche.cmdGeneralites.Visible ? " boutons" : "");
    };
    session.TreeView1_NodeClick(noeud(etats, "Sans Rien"));
    session.cmdAutresInfos_Click();
    EXPECT_EQ(pages(), "-A boutons");
    session.Form_Resize(false);
    EXPECT_EQ(pages(), "-A boutons");
    session.Form_Resize(true);
    EXPECT_EQ(pages(), "GA");
    session.Form_Resize(false);
    EXPECT_EQ(pages(), "-A boutons");
}

TEST_F(UneCollection, TheDirectorLineSearchesTheCollection) {
    session.TreeView1_NodeClick(noeud(etats, "Le Samouraï"));
    session.lblRealisateur_Click();
    EXPECT_THAT(arbre(etats), ElementsAre("Le Cercle Rouge", "Le Samouraï"));
    EXPECT_EQ(etats.recherche.Text2.Text, "Jean-Pierre Melville");
    choisitTri(execution, 2);
    EXPECT_THAT(arbre(etats), ElementsAre("1967", "  Le Samouraï", "1970", "  Le Cercle Rouge"));
}

TEST_F(UneCollection, ARightClickAsksForTheMenuOfItsNode) {
    choisitZone(execution, 0);
    choisitTri(execution, 4);
    session.TreeView1_MouseUpDroit(noeud(etats, "Policier"));
    EXPECT_EQ(etats.menu, app::MenuContextuel::MenuClicDroitGenre);
    session.TreeView1_MouseUpDroit(noeud(etats, "Le Samouraï"));
    EXPECT_EQ(etats.menu, app::MenuContextuel::MenuClicDroitFilm);
    EXPECT_EQ(etats.fiche.Label1[0].Caption, "Le Samouraï");
    choisitTri(execution, 2);
    session.TreeView1_MouseUpDroit(noeud(etats, "1970"));
    EXPECT_EQ(etats.menu, app::MenuContextuel::Aucun);
}

TEST(Parcours, TheNextStartFindsEverythingAsItWasLeft) {
    const Installation installation;
    ecritFiches(installation);
    const std::string series = installation.chemin("Séries.mdb");
    {
        Execution premiere(installation.chemin());
        ASSERT_TRUE(premiere.demarre());
        importe(premiere, installation);
        choisitTri(premiere, 4);
        premiere.etats.frmPrincipal = {15000, 9000};
        premiere.boites.attendFichier(demandeBase(installation), installation.chemin("Séries"));
        premiere.boites.attendMsgBox("Le fichier " + series + " n'existe pas. Voulez-vous le créer ?",
                                     dialogues::kQuestion, dialogues::kOui);
        premiere.session.cmdChargeOuvreBase_Click();
        EXPECT_EQ(premiere.etats.liste.Label9[0].Caption, "0 titre");
        EXPECT_THROW(premiere.session.cmdStop_Click(), systeme::FinDuProgramme);
    }
    {
        Execution deuxieme(installation.chemin());
        ASSERT_TRUE(deuxieme.demarre());
        EXPECT_EQ(deuxieme.etats.liste.ChoixTri.Text, "Tri par genre");
        EXPECT_EQ(deuxieme.etats.frmPrincipal.Width, 15000);
        EXPECT_EQ(deuxieme.etats.liste.Label9[0].Caption, "0 titre");
        deuxieme.boites.attendFichier(demandeBase(installation), installation.chemin("Films.mdb"));
        deuxieme.session.cmdChargeOuvreBase_Click();
        deuxieme.session.Form_Unload();
    }
    Execution troisieme(installation.chemin());
    ASSERT_TRUE(troisieme.demarre());
    EXPECT_THAT(arbre(troisieme.etats), ElementsAre(" Hors tri !", "  Sans Rien", "Drame", "  Été Violent", "Policier",
                                                    "  Le Cercle Rouge", "  Le Samouraï"));
}

TEST(Parcours, ACopiedFolderIsAnInstallationOfItsOwn) {
    const Installation installation;
    ecritFiches(installation);
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        importe(execution, installation);
        execution.session.Form_Unload();
    }
    const doubles::DossierTemporaire ailleurs;
    std::filesystem::copy(installation.chemin(), ailleurs.chemin("Copie"), std::filesystem::copy_options::recursive);
    {
        dao::Database base = dao::DBEngine::OpenDatabase(ailleurs.chemin("Copie/Films.mdb"));
        dao::Recordset films = base.OpenRecordset("Films");
        films.AddNew();
        films.assigne("Titre", "Seulement dans la copie");
        films.Update();
    }
    Execution copie(ailleurs.chemin("Copie"));
    Execution originale(installation.chemin());
    ASSERT_TRUE(copie.demarre() && originale.demarre());
    EXPECT_EQ(copie.etats.liste.Label9[0].Caption, "5 titres");
    EXPECT_EQ(originale.etats.liste.Label9[0].Caption, "4 titres");
}

TEST_F(UneCollection, ItsPostersMoveAndItsBaseIsCompactedUnderTheUsersEyes) {
    doubles::DialoguesScript& boites = execution.boites;
    const std::vector<std::string> films = arbre(etats);
    session.cmdConfigurer_Click();
    ecran::choisit(etats.stockage.Option3, 1);
    session.Option3_Click();
    boites.attendMsgBox("Compactage effectué.", dialogues::kInformation);
    boites.attendMsgBox("1 fichier créé.\r\n", dialogues::kInformation);
    session.cmdMajBase_Click();
    EXPECT_TRUE(etats.panneaux.frameListeFonctions.Visible);
    EXPECT_EQ(arbre(etats), films);
    EXPECT_TRUE(std::filesystem::exists(installation.chemin("Images/Le Cercle Rouge - Jean-Pierre Melville.jpg")));
    boites.attendMsgBox(
        "Il y a 1 titre ayant un lien sur un fichier externe\nIl y a 0 titre ayant un lien sur un fichier interne",
        dialogues::kInformation);
    session.cmdInfosBase_Click();

    clique(execution, "Sans Rien");
    boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin()},
                         installation.chemin("Fiches/1.jpg"));
    session.Label12_Click();
    EXPECT_TRUE(etats.fiche.Image1.Visible);
    EXPECT_EQ(etats.fiche.Label1[0].Caption, "Sans Rien");

    boites.attendMsgBox(
        "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
        "rangement...)\nVoulez-vous continuer ?",
        dialogues::kQuestion, dialogues::kOui, "Suppression des titres personnels");
    boites.attendMsgBox("Appartenance de 4 titres supprimée.", dialogues::kInformation);
    session.cmdSupprInfosPerso_Click();
    EXPECT_EQ(etats.liste.Label9[1].Caption, "0 personnel");
    EXPECT_THAT(etats.fiche.Combo7[2].Items, ElementsAre());
}

}  // namespace
