#include "browse/RaffraichitBoitesDeroulantes.h"
#include "edit/TravailParLots.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kQuestionSimple = "Voulez-vous vraiment supprimer ce titre ?";

class SuppressionTest : public FenetreEdition {
  protected:
    void coche(const std::vector<std::string>& textes) {
        for (const std::string& texte : textes)
            TreeView1_NodeCheck(c, noeud(texte), true);
    }
    void interditDeSupprimer(const std::string& titre) {
        base.base.Execute(
            "PRAGMA foreign_keys=ON; CREATE TABLE Garde(film REFERENCES Films(id)); INSERT INTO Garde "
            "SELECT id FROM Films WHERE Titre='" +
            titre + "'");
    }
    void retire(const char* titre) {
        dao::Recordset ligne = base.base.OpenRecordset("SELECT * FROM films WHERE titre=\"" + std::string(titre) + '"');
        ligne.Delete();
    }
};

TEST_F(SuppressionTest, AnOwnedFilmGoesWithItsHoldingAndItsNode) {
    ajouteFilm("Avatar", {{"Realisateur", "R"}});
    ajouteFilm("Le \"Été\"", {{"Realisateur", "L'a\"b"}});
    ajouteFilm("Zorro", {{"Realisateur", "R"}});
    possede("Le \"Été\"", "L'a\"b", {{"Support", "DVD"}});
    RaffraichitBoitesDeroulantes(c);
    montre(browse::kZoneTous, browse::kTriTitre1);
    TreeView1_NodeCheck(c, noeud("Zorro"), true);
    clique("Le \"Été\"");
    liste.TreeView1.SelectedItem = noeud("Avatar");  // a tick moved the highlight, not the sheet
    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kNon);
    cmdSupprimerTitre_Click(c);
    EXPECT_EQ(titresDesFilms().size(), 3U);
    EXPECT_TRUE(panneaux.frameFiche.Visible);

    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kOui);
    cmdSupprimerTitre_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Avatar", "Zorro"));
    EXPECT_THAT(titresPossedes(), IsEmpty());
    EXPECT_THAT(arbreEnTexte(), ElementsAre("TA=A", ">K1=Avatar", "TL=L", "TZ=Z", ">K3=Zorro"));
    EXPECT_EQ(liste.TreeView1.SelectedItem, noeud("Avatar"));
    EXPECT_EQ(liste.TreeView1.coches, std::set<int>{noeud("Zorro")});
    EXPECT_EQ(liste.Frame1.Caption, "Liste des titres");
    EXPECT_EQ(liste.Label9[0].Caption, "2 titres");
    EXPECT_EQ(liste.Label9[1].Caption, "0 personnel");
    EXPECT_THAT(fiche.Combo7[2].Items, IsEmpty());
    EXPECT_TRUE(panneaux.framePresentation.Visible);

    cmdSupprimerTitre_Click(c);  // no film is current any more: no question
    clique("Zorro");
    EXPECT_EQ(film.titre, "Zorro");
}

TEST_F(SuppressionTest, TheLastFilmLeavesItsHeadingUntilTheNextListing) {
    ajouteFilm("Avatar", {{"Realisateur", "R"}});
    possede("Avatar", "R");
    montre(browse::kZoneTous, browse::kTriTitre1);
    clique("Avatar");
    ecran::choisit(fiche.Option1, 0);  // shown as not owned: the holding stays
    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kOui);
    cmdSupprimerTitre_Click(c);
    EXPECT_THAT(arbreEnTexte(), ElementsAre("TA=A"));
    EXPECT_THAT(titresPossedes(), ElementsAre("Avatar"));
    montre(browse::kZoneTous, browse::kTriTitre1);
    EXPECT_THAT(arbreEnTexte(), IsEmpty());
}

TEST_F(SuppressionTest, AFilmThatIsGoneIsToldAndItsNodeStays) {
    ajouteFilm("Avatar", {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    clique("Avatar");
    retire("Avatar");
    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kOui);
    dialogues.attendMsgBox("Titre non trouvé !", 48);
    cmdSupprimerTitre_Click(c);
    EXPECT_EQ(liste.TreeView1.Nodes.Count(), 1);
    EXPECT_TRUE(panneaux.framePresentation.Visible);
}

TEST_F(SuppressionTest, ABaseThatCannotDeleteKeepsFilmAndHolding) {
    ajouteFilm("Avatar", {{"Realisateur", "R"}});
    possede("Avatar", "R");
    interditDeSupprimer("Avatar");
    montre(browse::kZoneTous, browse::kTriTitre2);
    clique("Avatar");
    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kOui);
    EXPECT_THROW(cmdSupprimerTitre_Click(c), dao::ErreurDao);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Avatar"));
    EXPECT_THAT(titresPossedes(), ElementsAre("Avatar"));
    EXPECT_FALSE(base.base.enTransaction());
}

// Some cannot be deleted: its film must not go alone.
TEST_F(SuppressionTest, AHoldingThatCannotGoKeepsItsFilm) {
    for (const char* titre : {"Avatar", "Zorro"}) {
        ajouteFilm(titre, {{"Realisateur", "R"}});
        possede(titre, "R");
    }
    base.base.Execute(
        "PRAGMA foreign_keys=ON; CREATE TABLE Garde(film REFERENCES Personnel(id)); INSERT INTO Garde "
        "SELECT id FROM Personnel WHERE Titre2='Zorro'");
    montre(browse::kZoneTous, browse::kTriTitre2);
    clique("Zorro");
    dialogues.attendMsgBox(kQuestionSimple, 36, dialogues::kOui);
    EXPECT_THROW(cmdSupprimerTitre_Click(c), dao::ErreurDao);
    coche({"Zorro"});
    dialogues.attendMsgBox("Voulez-vous vraiment supprimer ce titre ?", 36, dialogues::kOui);
    dialogues.attendMsgBox(
        "Erreur 3022 : La modification contredit une règle de la base (FOREIGN KEY constraint failed).");
    dialogues.attendMsgBox("0 titre supprimé.", 64);
    cmdSupprTitresSelect_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Avatar", "Zorro"));
    EXPECT_THAT(titresPossedes(), ElementsAre("Avatar", "Zorro"));
}

TEST_F(SuppressionTest, TheOwnershipOnTheScreenDecidesForEveryTickedFilm) {
    for (const bool possedeALEcran : {false, true}) {
        for (const char* titre : {"Avatar", "Brazil", "Zorro"}) {
            ajouteFilm(titre, {{"Realisateur", "R"}});
            possede(titre, "R");
        }
        montre(browse::kZoneMesFilms, browse::kTriTitre1);
        coche({"Avatar", "Zorro"});
        cmdMultiSuppress_Click(c);
        ecran::choisit(fiche.Option1, possedeALEcran ? 1 : 0);
        dialogues.attendMsgBox("Voulez-vous vraiment supprimer ces 2 titres ?", 36, dialogues::kOui);
        dialogues.attendMsgBox("2 titres supprimés.", 64);
        cmdSupprTitresSelect_Click(c);
        EXPECT_THAT(titresDesFilms(), ElementsAre("Brazil"));
        EXPECT_EQ(titresPossedes().size(), possedeALEcran ? 1U : 3U);
        EXPECT_THAT(titres(), ElementsAre("Brazil"));
        EXPECT_THAT(liste.TreeView1.coches, IsEmpty());
        EXPECT_TRUE(panneaux.frameMultiSuppression.Visible);
        base.base.Execute("DELETE FROM Films; DELETE FROM Personnel");
    }
}

TEST_F(SuppressionTest, FilmsThatAreGoneAreNotCountedAndTwinsGoBoth) {
    for (const char* titre : {"Alien", "Avatar", "Zorro"})
        ajouteFilm(titre, {{"Realisateur", "R"}, {"Annee", "1990"}});
    ajouteFilm("Avatar", {{"Realisateur", "R"}, {"Annee", "1980"}});  // listed before its elder twin
    montre(browse::kZoneTous, 2);
    for (int i = 1; i <= liste.TreeView1.Nodes.Count(); ++i)
        if (liste.TreeView1.Nodes.Text(i) == "Avatar") TreeView1_NodeCheck(c, i, true);
    coche({"Zorro"});
    retire("Zorro");
    dialogues.attendMsgBox("Voulez-vous vraiment supprimer ces 3 titres ?", 36, dialogues::kOui);
    dialogues.attendMsgBox("2 titres supprimés.", 64);
    cmdSupprTitresSelect_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Alien"));
}

TEST_F(SuppressionTest, AStopKeepsWhatWasDeletedAndAFailureDeletesNothing) {
    for (const char* titre : {"Alien", "Brazil", "Casino", "Zorro"})
        ajouteFilm(titre, {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    coche({"Alien", "Brazil", "Casino"});
    ecranMuet.arretApres = 2;
    ecranMuet.pendantSouffle = [this] { EXPECT_TRUE(travaux.ProgressBar3.Visible && travaux.ProgressBar3.Max == 3); };
    dialogues.attendMsgBox("Voulez-vous vraiment supprimer ces 3 titres ?", 36, dialogues::kOui);
    dialogues.attendMsgBox("2 titres supprimés.", 64);
    cmdSupprTitresSelect_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Casino", "Zorro"));
    EXPECT_FALSE(travaux.ProgressBar3.Visible);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);

    ecranMuet.arretApres = 0;
    ecranMuet.pendantSouffle = nullptr;
    interditDeSupprimer("Zorro");
    montre(browse::kZoneTous, browse::kTriTitre2);
    coche({"Casino", "Zorro"});
    dialogues.attendMsgBox("Voulez-vous vraiment supprimer ces 2 titres ?", 36, dialogues::kOui);
    dialogues.attendMsgBox(
        "Erreur 3022 : La modification contredit une règle de la base (FOREIGN KEY constraint failed).");
    dialogues.attendMsgBox("0 titre supprimé.", 64);
    cmdSupprTitresSelect_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Casino", "Zorro"));

    // What took a lot's time is stored before what follows.
    montre(browse::kZoneTous, browse::kTriTitre2);
    coche({"Casino", "Zorro"});
    ecranMuet.pendantSouffle = [this] { MachineDEssai::montre.avance(edit::TravailParLots::kDuree); };
    dialogues.attendMsgBox("Voulez-vous vraiment supprimer ces 2 titres ?", 36, dialogues::kOui);
    dialogues.attendMsgBox(
        "Erreur 3022 : La modification contredit une règle de la base (FOREIGN KEY constraint failed).");
    dialogues.attendMsgBox("1 titre supprimé.", 64);
    cmdSupprTitresSelect_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("Zorro"));
}

}  // namespace
