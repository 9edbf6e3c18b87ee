#include "browse/ModifieNoteFilm.h"
#include "edit/ModifieGroupe.h"
#include "edit/cmdModifieNote_Click.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class NotesEtGroupesTest : public FenetreEdition {
  protected:
    void attendNote(const std::string& reponse) {
        dialogues.attendInputBox("Quelle note (entre 1 et 10) voulez vous attribuer au film \"L'a\"b\" de R ?",
                                 reponse);
    }
    void attendGenre(const std::string& reponse, const std::string& defaut) {
        dialogues.attendInputBox("Entrez le nom du nouveau genre", reponse, "Modifier le genre", defaut);
    }
    void attendSupport(const std::string& reponse, const std::string& defaut) {
        dialogues.attendInputBox("Entrez le nom du nouveau support", reponse, "Modifier le support", defaut);
    }
};

TEST_F(NotesEtGroupesTest, AnAnswerFromOneToTenIsRoundedAnEmptyOneClears) {
    ajouteFilm("L'a\"b", {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    clique("L'a\"b");
    const struct {
        const char* reponse;
        const char* note;
    } cas[] = {{"3", "3"},   {"0", "3"},   {"11", "3"},  {"0.9", "3"},   {"10,1", "3"}, {"bien", "3"},
               {" ", "3"},   {"-5", "3"},  {"7.5", "8"}, {"6.5", "6"},   {"7,5", "8"},  {" 9 sur 10", "9"},
               {"1,4", "1"}, {"10", "10"}, {"", ""},     {"9,99", "10"}, {"", ""}};
    for (const auto& [reponse, note] : cas) {
        attendNote(reponse);
        cmdModifieNote_Click(c);
        EXPECT_THAT(colonne("Films", "Note"), ElementsAre(note)) << reponse;
        EXPECT_EQ(fiche.lblNote.Caption, browse::texteDeLaNote(*note ? std::stod(note) : 0));
        EXPECT_TRUE(panneaux.frameFiche.Visible);
    }
    EXPECT_TRUE(base.base.OpenRecordset("Films").valeur("Note").estNull());
}

// Without a question: the boxes of the test would refuse one.
TEST_F(NotesEtGroupesTest, AStarGivesItsRatingAndTakesItAwayAgain) {
    etoilesNote_Click(c, 5);  // no film
    ajouteFilm("A", {{"Realisateur", "R"}});
    ajouteFilm("B", {{"Realisateur", "R"}, {"Note", 9}});
    montre(browse::kZoneTous, browse::kTriNote);
    clique("A");
    const auto note = [&] { return colonne("SELECT * FROM Films WHERE Titre = \"A\"", "Note").front(); };
    etoilesNote_Click(c, 8);
    EXPECT_EQ(note(), "8");
    EXPECT_EQ(fiche.note, 8);
    EXPECT_EQ(fiche.lblNote.Caption, "Note : 8/10");
    EXPECT_EQ(film.titre, "A") << "the list is sorted again, and the film chosen in it";
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.SelectedItem), "A");
    for (const int refusee : {-1, 11}) {
        etoilesNote_Change(c, refusee);
        EXPECT_EQ(note(), "8");
    }
    etoilesNote_Change(c, 8);
    EXPECT_EQ(note(), "8") << "the keys take nothing away that they do not say";
    etoilesNote_Click(c, 8);
    EXPECT_EQ(note(), "");
    EXPECT_EQ(fiche.note, 0);
    etoilesNote_Change(c, 10);
    etoilesNote_Change(c, 0);
    EXPECT_EQ(fiche.lblNote.Caption, "Pas de notation");
}

TEST_F(NotesEtGroupesTest, AGenreIsRenamedUnderItsHeadingOnly) {
    for (const char* titre : {"Avatar", "Brazil"})
        ajouteFilm(titre, {{"Realisateur", "R"}, {"Genre", "Drame"}});
    ajouteFilm("Zorro", {{"Realisateur", "R"}, {"Genre", "Western"}});
    montre(browse::kZoneTous, browse::kTriGenre);  // a listing without Support
    clique("Drame");
    attendGenre("", "Drame");
    RenommerGenreFilms_Click(c);
    EXPECT_EQ(demandes.focus, "");
    attendGenre("Comédie dramatique", "Drame");
    RenommerGenreFilms_Click(c);
    EXPECT_EQ(demandes.focus, "TreeView1") << "the list was filled anew";
    EXPECT_THAT(colonne("Films", "Genre"), ElementsAre("Comédie dramatique", "Comédie dramatique", "Western"));
    EXPECT_THAT(arbreEnTexte(),
                ElementsAre("T1=Comédie dramatique", ">K1=Avatar", ">K2=Brazil", "T2=Western", ">K3=Zorro"));
    EXPECT_EQ(liste.TreeView1.SelectedItem, noeud("Comédie dramatique"));
    EXPECT_EQ(liste.TreeView1.aOuvrir, noeud("Comédie dramatique"));
    clique("Avatar");
    RenommerGenreFilms_Click(c);  // a film is selected, no heading
    clique("Western");
    attendGenre(std::string(39, 'x') + "éé", "Western");
    RenommerGenreFilms_Click(c);
    EXPECT_EQ(colonne("Films", "Genre").back(), std::string(39, 'x') + "é");
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.SelectedItem), std::string(39, 'x') + "é");
    liste.AffStats.Value = 1;
    AffichageApresModification(c);
    TreeView1_NodeClick(c, 1);
    attendGenre("XXX", "Comédie dramatique");
    ajouteFilm("Fargo", {{"Realisateur", "R"}, {"Genre", "xxx"}});
    RenommerGenreFilms_Click(c);  // the heading of the same name for the base, where it stands now
    EXPECT_EQ(liste.TreeView1.Nodes.enfants(liste.TreeView1.SelectedItem).size(), 3U);
    EXPECT_EQ(liste.TreeView1.aOuvrir, liste.TreeView1.SelectedItem);
    attendGenre("Noir", "Gris");  // the same question, which proposes what was looked at before
    RenommeEnProposant(c, false, "Gris");
    EXPECT_EQ(colonne("Films", "Genre").front(), "Noir");
}

TEST_F(NotesEtGroupesTest, ARenamingStopsAtTheFirstFilmWithoutAHolding) {
    for (const char* titre : {"Alien", "Brazil", "L'a\"b", "Zorro"}) {
        ajouteFilm(titre, {{"Realisateur", "R"}});
        possede(titre, "R", {{"Support", "DVD"}});
    }
    montre(browse::kZoneMesFilms, browse::kTriSupport);
    {
        dao::Recordset partie = base.base.OpenRecordset("SELECT * FROM Personnel WHERE titre2=\"L'a\"\"b\"");
        partie.Edit();
        partie.assigne("Realisateur2", "autre");
        partie.Update();
    }
    clique("DVD");
    attendSupport("Disque bleu", "DVD");
    dialogues.attendMsgBox("Infos personnelles sur le titre \"L'a\"b\" de R non trouvées !\r\nProcessus arrêté.", 48);
    RenommeSupportFilms_Click(c);
    EXPECT_THAT(colonne("Personnel", "Support"), ElementsAre("Disque bleu", "Disque bleu", "DVD", "DVD"));
    EXPECT_THAT(titres(), ElementsAre("Alien", "Brazil", "Zorro"));
    EXPECT_THAT(fiche.Combo7[2].Items, ElementsAre("Disque bleu", "DVD"));
}

TEST_F(NotesEtGroupesTest, AHeadingWithoutFilmsRenamesNothingAndAStopKeepsWhatIsDone) {
    for (const char* titre : {"Alien", "Brazil", "Zorro"})
        ajouteFilm(titre, {{"Realisateur", "R"}, {"Genre", "Drame"}});
    montre(browse::kZoneTous, browse::kTriGenre);
    clique("Drame");
    ecranMuet.arretApres = 2;
    attendGenre("Noir", "Drame");
    RenommerGenreFilms_Click(c);
    EXPECT_THAT(colonne("Films", "Genre"), ElementsAre("Noir", "Noir", "Drame"));
    EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);
    clique("Drame");
    liste.TreeView1.Nodes.retire(noeud("Zorro"));
    attendGenre("Gai", "");
    RenommerGenreFilms_Click(c);
    EXPECT_THAT(colonne("Films", "Genre"), ElementsAre("Noir", "Noir", "Drame"));
}

}  // namespace
