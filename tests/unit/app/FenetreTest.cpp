#include "acquire/AdresseRecherche.h"
#include "app/Aide.h"
#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "app/RaccourcisClavier.h"
#include "browse/ChoixZone.h"
#include "db/cmdMajBase_Click.h"
#include "parcours/Installation.h"

#include <gtest/gtest.h>

namespace {

using parcours::Execution;
using parcours::Installation;

// "D" the add panel, "O" tools, "C" configuration; a capital is shown. Then the bold button, "-" for none.
std::string panneaux(const app::Etats& etats) {
    const app::EtatFonctions& f = etats.fonctions;
    const std::string gras = f.cmdConfig[0].FontBold ? "0" : f.cmdConfig[1].FontBold ? "1" : "-";
    if (!etats.panneaux.frameListeFonctions.Visible || etats.panneaux.frameFiche.Visible ||
        etats.panneaux.framePresentation.Visible)
        return "not the functions";
    return std::string(f.frameDivers.Visible ? "D" : "d") + (f.frameOutils.Visible ? "O" : "o") +
           (f.frameConfig.Visible ? "C" : "c") + gras;
}

TEST(ChoixFonction, OnePanelAtATimeUnderItsBoldButton) {
    const Installation installation;
    Execution execution(installation.chemin());
    app::Session& session = execution.session;
    session.Form_Load();
    session.execute(app::cmdAfficherFonctions_Click);
    EXPECT_EQ(panneaux(session.etats), "Doc-");
    EXPECT_TRUE(session.etats.ajout.frameAjoutAuto.Visible && session.etats.ajout.Command13[0].FontBold);
    EXPECT_EQ(session.etats.demandes.focus, "txtRechInternet");
    session.execute(app::cmdConfigurer_Click);
    EXPECT_EQ(panneaux(session.etats), "dOc0");
    session.execute(app::cmdConfig_Click, 1);
    EXPECT_EQ(panneaux(session.etats), "doC1");
    session.execute(app::cmdConfig_Click, 0);
    EXPECT_EQ(panneaux(session.etats), "dOc0");
    session.execute(app::cmdConfig_Click, 7);
    EXPECT_EQ(panneaux(session.etats), "doC1");
}

TEST(DossierDesImages, ANameThatIsShortIsTheSameFolderAfterARestartElsewhere) {
    const Installation installation;
    const std::string affiche = "\xFF\xD8 une affiche", ici = std::filesystem::current_path();
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        dao::DBEngine::OpenDatabase(installation.chemin("Films.mdb"))
            .Execute(
                "INSERT INTO Films (Titre, Realisateur, Affiche) VALUES ('Été', 'R', CAST('STO' || x'FFD8' || ' une "
                "affiche' AS BLOB))");
        ecran::choisit(execution.etats.stockage.Option3, 1);
        execution.boites.attendDossier("Dossier des images", "", installation.chemin("Tmp/x"));
        execution.boites.attendMsgBox("Le dossier des images ne peut pas être " + installation.chemin("Tmp/x") +
                                          " : Ambrelis efface ce que contient « Tmp » chaque fois qu'il se ferme.",
                                      dialogues::kExclamation);
        execution.session.execute(app::cmdParcourir_Click);
        execution.etats.stockage.Text4.Text = "affiches";
        execution.boites.attendMsgBox("Compactage effectué.", dialogues::kInformation);
        execution.boites.attendMsgBox("1 fichier créé.\r\n", dialogues::kInformation);
        execution.session.execute(db::cmdMajBase_Click);
        EXPECT_THROW(execution.session.cmdStop_Click(), systeme::FinDuProgramme);
    }
    EXPECT_EQ(installation.lit("affiches/Été - R.jpg"), affiche);
    std::filesystem::create_directories(installation.chemin("ailleurs/affiches"));
    std::filesystem::current_path(installation.chemin("ailleurs"));
    Execution execution(installation.chemin());
    ASSERT_TRUE(execution.demarre());
    execution.etats.liste.ChoixZone.selectionne(browse::kZoneTous);
    execution.session.execute(browse::ChoixZone_Click);
    execution.session.execute(app::TreeView1_NodeClick, 2);
    EXPECT_EQ(execution.images.courante, affiche);
    std::filesystem::current_path(ici);
}

TEST(APropos, KeepsItsFixedLines) {
    const std::string texte = app::texteAPropos();
    EXPECT_TRUE(
        texte.starts_with("Ambrelis\n\nFreeware permettant de gérer sa vidéothèque personnelle.  L'ajout des "
                          "titres peut être automatisé\n"));
    EXPECT_TRUE(
        texte.ends_with("\n\nNotes : pour agrandir la fenêtre du logiciel, cliquez sur les bords : \n"
                        "Ambrelis s'adaptera à la taille que vous lui donnez ! "));
    const Installation installation;
    Execution execution(installation.chemin());
    execution.boites.attendMsgBox(texte, dialogues::kInformation);
    execution.session.execute(app::cmdAide_Click);
}

TEST(Liens, OpenInTheBrowserOrGiveTheirAddress) {
    const Installation installation;
    Execution execution(installation.chemin());
    execution.session.execute(app::Image3_Click);
    execution.session.execute(app::cmdPageAuNavigateur_Click, "prets.html");
    EXPECT_EQ(execution.documents.ouverts,
              (std::vector<std::string>{acquire::kSiteMovieCovers, installation.chemin("Guide/prets.html")}));
    execution.documents.reussit = false;
    execution.boites.attendMsgBox(
        std::string("Le navigateur n'a pas pu être ouvert (") + acquire::kSiteMovieCovers + ").",
        dialogues::kExclamation);
    execution.session.execute(app::Image3_Click);
}

TEST(Guide, OpensAtThePageOfWhatIsShown) {
    const Installation installation;
    Execution execution(installation.chemin());
    execution.session.Form_Load();
    app::Etats& etats = execution.session.etats;
    const auto page = [&](ecran::Cadre& cadre) {
        etats.panneaux.montre(cadre);
        return app::pageDuPanneau(etats);
    };
    browse::EtatPanneaux& panneaux = etats.panneaux;
    EXPECT_EQ(page(panneaux.framePresentation), "premier.html") << "there is no film";
    EXPECT_EQ(page(panneaux.frameRecherche), "chercher.html");
    etats.collection.page = app::PageDeCollection::Doublons;
    EXPECT_EQ(page(panneaux.frameCollection), "ordre.html#doublons");
    etats.fiche.frameGeneralites[0].Visible = true;
    EXPECT_EQ(page(panneaux.frameFiche), "fiche.html");
    etats.fiche.frameGeneralites[0].Visible = false;
    EXPECT_EQ(page(panneaux.frameFiche), "exemplaire.html");
    etats.ajout.Frame13.Visible = etats.fonctions.frameOutils.Visible = etats.fonctions.frameConfig.Visible = false;
    etats.ajout.frameImportBase.Visible = true;
    EXPECT_EQ(page(panneaux.frameListeFonctions), "venir.html#installation");
    execution.session.execute(app::cmdConfig_Click, 0);
    EXPECT_EQ(app::pageDuPanneau(etats), "outils.html");
    execution.session.execute(app::cmdConfig_Click, 1);
    EXPECT_EQ(app::pageDuPanneau(etats), "outils.html#configuration");

    execution.boites.attendMsgBox(app::texteTouches(), dialogues::kInformation);
    execution.session.execute(app::Label4_Click);
    EXPECT_EQ(etats.guide.presentations, 0) << "there is no guide in the program folder: the keys are told";
    installation.ecrit("Guide/index.html", "<p>");
    execution.session.execute(app::Label4_Click);
    EXPECT_EQ(etats.guide.page, "index.html");
    execution.session.execute(app::AideDuPanneau);
    EXPECT_EQ(etats.guide.page, "outils.html#configuration");
    EXPECT_EQ(etats.guide.presentations, 2);
}

}  // namespace
