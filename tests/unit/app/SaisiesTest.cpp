#include "acquire/ImporterAncienneBase.h"
#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "app/RaccourcisClavier.h"
#include "browse/AfficheTitres.h"
#include "browse/AfficheVolet.h"
#include "browse/cmdFonctionRecherche_Click.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "parcours/Gestes.h"

#include <functional>
#include <vector>

#include <gmock/gmock.h>

namespace {

using parcours::Execution;
using parcours::Installation;

constexpr const char* kAbandon = "La fiche n'est pas enregistrée.\nVoulez-vous abandonner votre saisie ?";
const std::string kPossession =
    "La possession de « Le Samouraï » n'est pas validée.\nVoulez-vous abandonner votre saisie ?";

struct Saisies : testing::Test {
    void SetUp() override {
        parcours::ecritFiches(installation);
        ASSERT_TRUE(execution.demarre());
        parcours::importe(execution, installation);
        parcours::choisitZone(execution, 0);
        etats.avis.retire();
    }
    [[nodiscard]] bool saisieMontree() const {
        return etats.panneaux.frameListeFonctions.Visible && etats.ajout.Frame13.Visible;
    }
    [[nodiscard]] std::string avis() const {
        return etats.avis.frameAvis.Visible ? etats.avis.lblAvis.Caption : std::string();
    }
    void clique(const char* texte) { parcours::clique(execution, texte); }
    void commence() {
        session.execute(app::Command13_Click, 1);
        session.execute(app::SaisieManuelle);
        etats.ajout.Text3[0].Text = "L'Été";
        etats.ajout.Combo2.Text = "Comedie";
        etats.ajout.txtResume.Text = "Un\u00a0été\r\nà deux";
    }
    void verifieLaSaisie() {
        EXPECT_TRUE(saisieMontree());
        EXPECT_EQ(etats.ajout.Text3[0].Text + "/" + etats.ajout.Combo2.Text + "/" + etats.ajout.txtResume.Text,
                  "L'Été/Comedie/Un\u00a0été\r\nà deux");
    }
    void prete(const std::string& nom) {
        etats.fiche.Combo7[0].Text = nom;
        session.execute(edit::Combo7_Change, 0);
    }
    void corrige(const char* titre, const char* genre) {
        clique(titre);
        session.execute(app::cmdModifierTitre_Click);
        etats.ajout.Combo2.Text = genre;
    }
    void enleve(const std::string& titre) {  // as another program would
        dao::DBEngine::OpenDatabase(installation.chemin("Films.mdb"))
            .Execute("DELETE FROM Films WHERE Titre='" + titre + "'");
    }

    Installation installation;
    Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
    doubles::DialoguesScript& boites = execution.boites;
};

TEST_F(Saisies, AnEntryThatIsLeftIsToldAndComesBackWhole) {
    const std::vector<std::function<void()>> departs{[&] { clique("Le Samouraï"); },
                                                     [&] { session.execute(app::TreeView1_MouseUpDroit, 1); },
                                                     [&] { parcours::choisitTri(execution, 4); },
                                                     [&] { parcours::choisitZone(execution, 1); },
                                                     [&] { session.execute(app::cmdConfigurer_Click); },
                                                     [&] { session.execute(app::Command13_Click, 1); },
                                                     [&] { session.execute(browse::cmdFonctionRecherche_Click); }};
    for (std::size_t i = 0; i < departs.size(); ++i) {
        SCOPED_TRACE(i);
        commence();
        departs[i]();
        ASSERT_EQ(avis(), "Saisie de « L'Été » laissée sans être enregistrée.");
        session.execute(app::cmdAvis_Click, 0);
        verifieLaSaisie();
        EXPECT_EQ(avis(), "");
        EXPECT_EQ(etats.ajout.cmdAjoutFilm.Caption, "Ajouter");
        boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kOui);
        session.execute(app::QuittePanneau);  // it is still at stake
        session.execute(app::cmdFermerAvis_Click);
    }
    EXPECT_EQ(avis(), "");
    session.execute(app::SaisieManuelle);
    EXPECT_EQ(etats.ajout.Text3[0].Text, "") << "given up with its notice";
}

TEST_F(Saisies, ACorrectionComesBackWithItsFilmWhereverTheListingWent) {
    corrige("Le Samouraï", "Drame");
    parcours::cherche(execution, "rouge");  // the listing lacks the film
    EXPECT_EQ(avis(), "Correction de « Le Samouraï » laissée sans être enregistrée.");
    session.execute(app::cmdAvis_Click, 0);
    EXPECT_TRUE(saisieMontree() && etats.ajout.modeModifier());
    EXPECT_EQ(etats.ajout.Label5.Caption, "Modifier : « Le Samouraï »");
    session.execute(edit::cmdAjoutFilm_Click);
    parcours::choisitZone(execution, 1);
    parcours::choisitTri(execution, 4);
    clique("Le Samouraï");
    EXPECT_EQ(parcours::groupeChoisi(etats), "Drame");
    EXPECT_EQ(etats.liste.Label9[0].Caption, "4 titres");

    corrige("Le Samouraï", "Policier");
    session.execute(app::cmdConfigurer_Click);
    enleve("Le Samouraï");
    session.execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(avis(), "« Le Samouraï » n'est plus dans la base : sa fiche est reprise pour être ajoutée.");
    EXPECT_TRUE(saisieMontree() && !etats.ajout.modeModifier());
    EXPECT_EQ(etats.ajout.Text3[0].Text + "/" + etats.ajout.Combo2.Text, "Le Samouraï/Policier");
}

TEST_F(Saisies, HoldingsThatAreLeftComeBackOverWhatTheBaseNowHolds) {
    clique("Le Samouraï");
    prete("Zoé");
    clique("Le Cercle Rouge");
    EXPECT_EQ(avis(), "Possession de « Le Samouraï » non validée.");
    EXPECT_EQ(etats.fiche.Combo7[0].Text, "");
    prete("Paul");
    session.execute(browse::cmdFonctionRecherche_Click);
    session.execute(app::QuittePanneau);
    EXPECT_EQ(etats.fiche.Combo7[0].Text, "Paul") << "the sheet comes back as it was";
    clique("Le Samouraï");
    EXPECT_EQ(avis(), "Possession de « Le Cercle Rouge » non validée.");
    parcours::choisitZone(execution, 0);
    session.execute(app::cmdFermerAvis_Click);
    clique("Le Samouraï");
    EXPECT_EQ(avis(), "Possession de « Le Samouraï » non validée.") << "told again where the user comes back to it";

    dao::DBEngine::OpenDatabase(installation.chemin("Films.mdb")).Execute("UPDATE Personnel SET Rangement='Salon'");
    parcours::choisitZone(execution, 3);
    session.execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(parcours::filmMontre(etats), "Le Samouraï de Jean-Pierre Melville");
    EXPECT_EQ(etats.fiche.Combo7[0].Text + "/" + etats.fiche.Text10[3].Text, "Zoé/Salon");
    EXPECT_TRUE(etats.fiche.cmdValiderInfosPossessions.Visible);

    parcours::choisitZone(execution, 1);
    enleve("Le Samouraï");
    session.execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(avis(), "« Le Samouraï » n'est plus dans la base : ce qui était noté de sa possession reste de côté.");
    EXPECT_EQ(etats.avis.cmdAvis[0].Caption, "Reprendre");
}

TEST_F(Saisies, WhatShowsTheSameFilmKeepsItsHoldings) {
    parcours::choisitTri(execution, 7);
    clique("Le Samouraï");
    prete("Zoé");
    const std::string image = installation.ecrit("image.jpg", "\xFF\xD8");
    const std::vector<std::function<void()>> gestes{
        [&] { session.execute(app::TreeView1_MouseUpDroit, parcours::noeud(etats, "Le Samouraï")); },
        [&] {
            boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin()},
                                 image);
            session.execute(app::Label12_Click);
        },
        [&] {
            boites.attendInputBox(
                "Quelle note (entre 1 et 10) voulez vous attribuer au film \"Le Samouraï\" de "
                "Jean-Pierre Melville ?",
                "8");
            session.execute(edit::cmdModifieNote_Click);
            EXPECT_EQ(parcours::groupeChoisi(etats), "8");
        },
        [&] {
            etats.liste.AffStats.Value = 1;
            session.execute(browse::AffStats_Click);
        },
        [&] { clique("Le Samouraï"); }};
    for (std::size_t i = 0; i < gestes.size(); ++i) {
        SCOPED_TRACE(i);
        gestes[i]();
        EXPECT_EQ(etats.fiche.Combo7[0].Text, "Zoé");
        EXPECT_TRUE(etats.fiche.cmdValiderInfosPossessions.Visible && etats.panneaux.frameFiche.Visible);
        EXPECT_EQ(avis().find("non validée"), std::string::npos);
    }

    // The right button beside a begun correction of the film.
    session.execute(app::cmdModifierTitre_Click);
    etats.ajout.Text3[0].Text = "Le Samourai";
    session.execute(app::TreeView1_MouseUpDroit, parcours::noeud(etats, "Le Samouraï"));
    EXPECT_EQ(etats.menu, app::MenuContextuel::MenuClicDroitFilm);
    session.execute(browse::AffStats_Click);
    session.execute(app::cmdModifierTitre_Click);
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Le Samourai");
    session.execute(edit::cmdAjoutFilm_Click);  // the film bears another name, and its holdings are still typed
    EXPECT_EQ(parcours::filmMontre(etats), "Le Samourai de Jean-Pierre Melville");
    EXPECT_EQ(etats.fiche.Combo7[0].Text, "Zoé");
    session.execute(edit::cmdValiderInfosPossessions_Click);
    EXPECT_EQ(avis(), "Possession de « Le Samourai » enregistrée.");
    EXPECT_EQ(etats.fiche.Combo7[0].Text, "Zoé");

    prete("Paul");
    boites.attendMsgBox("Voulez-vous vraiment supprimer ce titre ?", dialogues::kQuestion, dialogues::kOui);
    session.execute(edit::cmdSupprimerTitre_Click);
    EXPECT_EQ(avis(), "« Le Samourai » supprimé.") << "they went with their film";
}

TEST_F(Saisies, HoldingsAreToldAlsoWhereTheWholeBaseWasReadAnew) {
    const doubles::DossierTemporaire ancienne;
    const std::string base = ancienne.ecrit("Films.mdb", installation.lit("Modele.dat"));
    dao::DBEngine::OpenDatabase(base).Execute("INSERT INTO Films (Titre, Realisateur) VALUES ('Playtime', 'Tati')");
    clique("Le Samouraï");
    prete("Zoé");
    session.execute(app::Command13_Click, 1);
    boites.attendDossier("Dossier de la précédente version", "", ancienne.chemin());
    const std::string origine = "Base : " + base + "\nImages : aucun dossier";
    boites.attendMsgBox(origine + "\n\nSouhaitez-vous importer cette base ?", dialogues::kQuestion, dialogues::kOui);
    boites.attendMsgBox("1 film ajouté.\n" + origine, dialogues::kInformation);
    session.execute(acquire::ImporterAncienneBase);
    boites.verifie();
    EXPECT_EQ(avis(), "Possession de « Le Samouraï » non validée.");
    session.execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(etats.fiche.Combo7[0].Text, "Zoé");
}

TEST_F(Saisies, LeavingTheBaseAsksBeforeAnythingIsDone) {
    commence();
    for (const auto& quitte : {std::function<void()>([&] { session.cmdStop_Click(); }),
                               std::function<void()>([&] { session.execute(app::cmdChargeOuvreBase_Click); }),
                               std::function<void()>([&] { EXPECT_FALSE(session.Form_QueryUnload()); })}) {
        boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kNon);
        quitte();
        verifieLaSaisie();
    }
    clique("Le Samouraï");
    etats.avis.retire();
    prete("Zoé");
    boites.attendMsgBox(kPossession, dialogues::kQuestion, dialogues::kNon);
    session.cmdStop_Click();
    boites.attendMsgBox(kPossession, dialogues::kQuestion, dialogues::kOui);
    EXPECT_THROW(session.cmdStop_Click(), systeme::FinDuProgramme);
}

TEST_F(Saisies, TheNewestComesBackFirstAndTheOthersAreToldAfterIt) {
    commence();
    clique("Le Samouraï");
    prete("Zoé");
    corrige("Le Cercle Rouge", "Drame");  // the click leaves the holdings
    session.execute(app::cmdConfigurer_Click);
    EXPECT_EQ(avis(), "Correction de « Le Cercle Rouge » laissée sans être enregistrée.");
    session.execute(app::cmdAvis_Click, 0);
    session.execute(edit::cmdAjoutFilm_Click);
    EXPECT_EQ(avis(), "« Le Cercle Rouge » corrigé.");
    session.execute(app::SaisieManuelle);
    verifieLaSaisie();
    boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin("Images/")},
                         "");
    etats.ajout.Text3[1].Text = "Tati";
    session.execute(edit::cmdAjoutFilm_Click);
    EXPECT_EQ(avis(), "« L'Été » ajouté.");
    EXPECT_TRUE(saisieMontree());
    session.execute(app::QuittePanneau);
    EXPECT_EQ(parcours::filmMontre(etats), "L'Été de Tati");
}

TEST_F(Saisies, LeavingAPanelGoesBackToTheSheetElseToThePresentation) {
    session.execute(app::cmdConfigurer_Click);
    session.execute(app::QuittePanneau);
    EXPECT_TRUE(etats.panneaux.framePresentation.Visible);

    parcours::clique(execution, "Le Samouraï");
    session.execute(browse::cmdAutresInfos_Click);
    const std::vector<std::function<void()>> ouvertures{[&] { session.execute(browse::cmdFonctionRecherche_Click); },
                                                        [&] { session.execute(edit::cmdMultiSuppress_Click); },
                                                        [&] { session.execute(app::cmdModifierTitre_Click); }};
    for (const auto& ouvre : ouvertures) {
        ouvre();
        session.execute(app::QuittePanneau);
        EXPECT_TRUE(etats.panneaux.frameFiche.Visible && etats.fiche.frameAutresInfos[0].Visible);
        EXPECT_FALSE(etats.panneaux.frameListeFonctions.Visible || etats.panneaux.frameRecherche.Visible);
        EXPECT_EQ(etats.demandes.focus, "TreeView1");
    }

    session.execute(app::cmdConfigurer_Click);
    session.Form_Resize(true);
    session.execute(app::QuittePanneau);
    EXPECT_TRUE(etats.fiche.frameGeneralites[0].Visible && etats.fiche.frameAutresInfos[0].Visible)
        << "the window grew meanwhile";
    session.Form_Resize(false);
    EXPECT_TRUE(etats.fiche.frameAutresInfos[0].Visible && etats.fiche.cmdGeneralites.Visible);
    EXPECT_FALSE(etats.fiche.frameGeneralites[0].Visible) << "the page that was open comes back";
}

TEST_F(Saisies, WhatWasTypedIsNotLostWithoutAQuestion) {
    session.execute(app::SaisieManuelle);
    EXPECT_EQ(etats.demandes.focus, "Text3_0");
    etats.ajout.Text3[0].Text = "Playtime";
    session.execute(app::SaisieManuelle);
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Playtime") << "the entry that was begun goes on";
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kNon);
    session.execute(app::QuittePanneau);
    EXPECT_TRUE(saisieMontree());
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kOui);
    session.execute(app::QuittePanneau);
    EXPECT_TRUE(etats.panneaux.framePresentation.Visible);

    session.execute(app::SaisieManuelle);
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Playtime");
    etats.ajout.Text3[1].Text = "Jacques Tati";
    boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin("Images/")},
                         "");
    session.execute(edit::cmdAjoutFilm_Click);
    session.execute(app::QuittePanneau);
    EXPECT_FALSE(saisieMontree()) << "a stored film is no longer at stake";

    parcours::clique(execution, "Playtime");
    session.execute(app::ModifieFilmAffiche);
    etats.ajout.Combo2.Text = "Comédie";
    boites.attendMsgBox(kAbandon, dialogues::kQuestion, dialogues::kNon);
    session.execute(app::SaisieManuelle);
    EXPECT_TRUE(etats.ajout.modeModifier());
}

TEST_F(Saisies, OnlyTheFilmOfAVisibleSheetIsCorrectedOrDeleted) {
    parcours::clique(execution, "Le Samouraï");
    session.execute(browse::cmdFonctionRecherche_Click);
    session.execute(app::ModifieFilmAffiche);
    session.execute(app::SupprimeFilmAffiche);
    EXPECT_TRUE(etats.panneaux.frameRecherche.Visible);

    session.execute(app::QuittePanneau);
    session.execute(app::ModifieFilmAffiche);
    EXPECT_EQ(etats.ajout.Text3[0].Text, "Le Samouraï");
    session.execute(app::QuittePanneau);
    boites.attendMsgBox("Voulez-vous vraiment supprimer ce titre ?", dialogues::kQuestion, dialogues::kOui);
    session.execute(app::SupprimeFilmAffiche);
    EXPECT_EQ(etats.liste.Label9[0].Caption, "3 titres");
}

}  // namespace
