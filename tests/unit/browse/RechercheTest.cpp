#include "Fenetre.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "browse/CreeRequeteAffichage.h"
#include "browse/SelectionneTitre.h"
#include "browse/SuitesDeLaBase.h"
#include "browse/cmdRecherche_Click.h"
#include "db/Requete.h"

namespace {

using Titres = std::vector<std::string>;

class RechercheTest : public Fenetre {
  protected:
    void SetUp() override {
        Fenetre::SetUp();
        ajouteFilm("Bleu", {{"Realisateur", "K"}, {"Annee", "1993"}, {"Acteurs", "Binoche"}});
        ajouteFilm("Avatar", {{"Realisateur", "C"}, {"Annee", "2009"}, {"Acteurs", "Worthington"}});
        ajouteFilm("Été \"bleu\"", {{"Realisateur", "R"}, {"Annee", "1996"}, {"Acteurs", ""}});
        ajouteFilm("Clair", {{"Realisateur", "K"}, {"Annee", "1998"}});  // no cast at all
        possede("Bleu", "K", {{"Pret", "Luc"}, {"Reserve", ""}});
        possede("avatar", "c", {{"Pret", ""}, {"Reserve", "Ève"}});  // the same film for the base
    }
    void attendRefus() {
        dialogues.attendMsgBox(
            "Le tri par support n'est pas possible pour ce cas-là : il faut que la recherche soit sur les titres "
            "possédés (Mes Films).",
            48);
    }
    void cherche(const char* texte, std::array<int, 4> champs, std::size_t portee) {
        recherche.Text2.Text = texte;
        for (std::size_t i = 0; i < champs.size(); ++i)
            recherche.ZoneRecherche[i].Value = champs[i];
        ecran::choisit(recherche.TypeFilm, portee);
        cmdRecherche_Click(c);
    }
};

TEST_F(RechercheTest, SortBySupportIsRefusedWhereFilmsHaveNoneAndTheTreeStays) {
    montre(browse::kZoneMesFilms, browse::kTriSupport);
    EXPECT_EQ(liste.triDeLArbre, browse::kTriSupport);
    montre(browse::kZoneTous, browse::kTriGenre);
    for (const int zone : {browse::kZoneTous, browse::kZoneNonPossedes}) {
        attendRefus();
        montre(zone, browse::kTriSupport);
        EXPECT_EQ(titres().size(), 4U);
        EXPECT_EQ(liste.triDeLArbre, browse::kTriGenre);
        EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriGenre);  // the lists name what is shown
        EXPECT_EQ(liste.ChoixZone.Text, "Tous les films");
        AffichageApresModification(c);  // and the next refresh is not refused again
    }
    montre(browse::kZoneMesFilms, browse::kTriSupport);
    attendRefus();
    liste.ChoixZone.selectionne(browse::kZoneNonPossedes);
    ChoixZone_Click(c);  // the zone that the sort refuses
    EXPECT_EQ(liste.ChoixZone.Text, "Mes films");
    EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriSupport);
    EXPECT_EQ(titres().size(), 2U);
}

TEST_F(RechercheTest, ARefusedSortOfASearchLeavesTheSearchNamedAndShown) {
    cherche("199", {0, 0, 1, 0}, 2);
    attendRefus();
    liste.ChoixTri.selectionne(browse::kTriSupport);
    ChoixTri_Click(c);
    EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriTitre2);
    EXPECT_EQ(liste.ChoixZone.Text, "Recherche");
    EXPECT_EQ(titres(), (Titres{"Clair", "Été \"bleu\""}));
}

TEST_F(RechercheTest, AnotherBaseEndsTheSearchInTheZoneItWasMadeIn) {
    cherche("199", {0, 0, 1, 0}, 2);
    apresChangementDeBase(c);
    EXPECT_EQ(liste.ChoixZone.Text, "Films non possédés");
    EXPECT_EQ(liste.ChoixZone.ListCount(), 6);
    EXPECT_EQ(liste.critereRecherche, "");
    EXPECT_EQ(titres(), (Titres{"Clair", "Été \"bleu\""}));
    cherche("199", {0, 0, 1, 0}, 0);
    ChoixZone_DropDown(c);  // left, but not for another zone yet
    liste.ChoixZone.selectionne(browse::kZoneTous);
    apresChangementDeBase(c);
    EXPECT_EQ(titres().size(), 4U);
    EXPECT_EQ(liste.critereRecherche, "");
}

TEST_F(RechercheTest, AReopenedBaseLeavesNoNodeOfTheOldListing) {
    montre(browse::kZoneTous, browse::kTriTitre2);
    dialogues.attendMsgBox("Erreur (1) : Etablissement de requête", 16);
    EXPECT_THROW(
        apresReouverture(c, [&] { CreeRequeteAffichage(c, browse::kZoneTous, browse::kTriGenre, "ceci n'est pas"); }),
        db::RequeteEchouee);
    EXPECT_EQ(liste.TreeView1.Nodes.Count(), 0);
    panneaux.montre(panneaux.frameListeFonctions);
    browse::SuitesDeLaBase(c).AffichageApresModification();
    EXPECT_EQ(titres().size(), 4U);
    EXPECT_TRUE(panneaux.frameListeFonctions.Visible) << "the panel whose command reopened it stays";
}

TEST_F(RechercheTest, ALockedBaseIsSaidToBeLocked) {
    montre(browse::kZoneTous, browse::kTriTitre2);
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    autre.Execute("BEGIN EXCLUSIVE");
    dialogues.attendMsgBox("Erreur (1) : Etablissement de requête", 16);
    try {
        montre(browse::kZoneTous, browse::kTriGenre);
        ADD_FAILURE() << "the listing was made";
    } catch (const db::RequeteEchouee& echec) {
        EXPECT_EQ(echec.raison, "Lecture impossible : la base est verrouillée par un autre programme.");
    }
    EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriTitre2);
    EXPECT_EQ(titres().size(), 4U);
    autre.Execute("ROLLBACK");
    AffichageApresModification(c);
}

TEST_F(RechercheTest, AListingThatFailsTellsItAndTheTreeStillFindsItsFilms) {
    montre(browse::kZoneTous, browse::kTriTitre2);
    dialogues.attendMsgBox("Erreur (1) : Etablissement de requête", 16);
    EXPECT_THROW(CreeRequeteAffichage(c, browse::kZoneTous, browse::kTriGenre, "ceci n'est pas"), db::RequeteEchouee);
    EXPECT_EQ(liste.triDeLArbre, browse::kTriTitre2);
    clique("Clair");
    EXPECT_EQ(film.titre, "Clair");
    CreeRequeteAffichage(c, browse::kZoneTous, 9);  // neither a zone nor a sort of the lists: nothing is rebuilt
    CreeRequeteAffichage(c, -1, browse::kTriGenre);
    EXPECT_EQ(titres().size(), 4U);
    EXPECT_EQ(film.titre, "");
    EXPECT_EQ(liste.noeudChoisi, -1);
}

TEST_F(RechercheTest, TheSearchStaysUnderAnotherSortAndGoesWithAnotherZone) {
    cherche("199", {0, 0, 1, 0}, 2);
    liste.ChoixTri.selectionne(browse::kTriTitre1);
    ChoixTri_Click(c);
    EXPECT_EQ(arbreEnTexte(), (Titres{"TC=C", ">K1=Clair", "TE=E", ">K2=Été \"bleu\""}));
    ChoixZone_DropDown(c);
    EXPECT_EQ(liste.ChoixZone.ListCount(), 6);
    EXPECT_EQ(liste.ChoixZone.Text, "Mes films");
    EXPECT_EQ(titres(), (Titres{"Clair", "Été \"bleu\""}));  // until a zone is picked
    liste.ChoixZone.selectionne(browse::kZoneTous);
    ChoixZone_Click(c);
    EXPECT_EQ(titres().size(), 4U);
    EXPECT_NE(liste.critereRecherche, "");
}

TEST_F(RechercheTest, ChangesTheProgramMakesRaiseNothing) {
    liste.occupe = true;
    ChoixZone_Click(c);
    ChoixTri_Click(c);
    liste.occupe = false;
    liste.ChoixTri.selectionne(-1);
    ChoixTri_Click(c);
    EXPECT_EQ(liste.TreeView1.Nodes.generation(), 0);
}

TEST_F(RechercheTest, AFilmIsSelectedByBothItsTexts) {
    ajouteFilm("Bleu", {{"Realisateur", "Un autre"}});
    montre(browse::kZoneTous, browse::kTriTitre1);
    SelectionneTitre(c, {"BLEU ", "un autre"});
    EXPECT_EQ(film.realisateur, "Un autre");
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.SelectedItem), "Bleu");
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    SelectionneTitre(c, film);  // its own fields, which showing a sheet rewrites
    EXPECT_EQ(film.realisateur, "Un autre");
    SelectionneTitre(c, {"Bleu", "personne"});
    EXPECT_EQ(film.realisateur, "Un autre");
    choisit(browse::kZoneMesFilms, browse::kTriTitre1);
    SelectionneTitre(c, {"Rouge", "K"});
    EXPECT_EQ(film.titre, "Bleu");
}

}  // namespace
