#include "Fenetre.h"
#include "browse/AfficheTitres.h"
#include "browse/SelectionneTitre.h"
#include "browse/cmdRecherche_Click.h"
#include "platform/systeme/Horloge.h"

namespace {

using Lignes = std::vector<std::string>;

class AfficheTitresTest : public Fenetre {};

TEST_F(AfficheTitresTest, TitlesGoUnderTheirFirstLetterWithoutItsAccent) {
    for (const char* titre : {"Été", "Ecran", "Avatar", "(500) jours", "1984", "émile", "Œdipe", "", "Ça", "ñ"})
        ajouteFilm(titre);
    ajoute(base.films, {{"Realisateur", "sans titre"}});
    montre(browse::kZoneTous, browse::kTriTitre1);
    const auto& noeuds = liste.TreeView1.Nodes;
    std::vector<std::string> sous;  // heading: titles
    for (const int groupe : noeuds.enfants(0)) {
        EXPECT_EQ(noeuds.Key(groupe), "T" + std::string(noeuds.Text(groupe)));
        std::string ligne(noeuds.Text(groupe));
        for (const int enfant : noeuds.enfants(groupe))
            ligne += "|" + std::string(noeuds.Text(enfant));
        sous.push_back(ligne);
    }
    // Sorted: no title, empty, signs and digits, then letters; "Œ" and "ñ" have no letter of their own.
    EXPECT_EQ(sous, (Lignes{"#|||(500) jours|1984|ñ|Œdipe", "A|Avatar", "C|Ça", "E|Ecran|émile|Été"}));
    EXPECT_EQ(liste.Frame1.Caption, "Liste de films (11 titres)");
}

TEST_F(AfficheTitresTest, ValuesThatTheBaseHoldsForEqualShareAHeadingOfTitlesInOrder) {
    const std::pair<const char*, const char*> films[]{
        {"Zorro", "DVD"}, {"Alien", "DVD "},  {"Muriel", "dvd"},  {"Été", "œuvre"},     {"Ête", "oeuvre"}, {"Dune", ""},
        {"Brazil", "  "}, {"Casablanca", ""}, {"Éden", "OEUVRE"}, {"Fargo", "e\u0301"}, {"Heat", "É"}};
    for (const auto& [titre, genre] : films)
        ajouteFilm(titre, {{"Genre", genre}});
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(arbreEnTexte(), (Lignes{"T1= Hors tri !", ">K1=Brazil", ">K2=Casablanca", ">K3=Dune", "T2=DVD ",
                                      ">K4=Alien", ">K5=Muriel", ">K6=Zorro", "T3=e\u0301", ">K7=Fargo", ">K8=Heat",
                                      "T4=OEUVRE", ">K9=Éden", ">K10=Été", ">K11=Ête"}));
}

TEST_F(AfficheTitresTest, RatingsAreHeadedByTheirNumberInItsOrder) {
    ajouteFilm("Dix", {{"Note", 10}});
    ajouteFilm("Neuf", {{"Note", 9}});
    ajouteFilm("Aucune");
    montre(browse::kZoneTous, browse::kTriNote);
    EXPECT_EQ(arbreEnTexte(), (Lignes{"T1= Hors tri !", ">K1=Aucune", "T2=9", ">K2=Neuf", "T3=10", ">K3=Dix"}));
}

TEST_F(AfficheTitresTest, TheSecondSortIsAFlatListAndStatisticsAddNothingToIt) {
    liste.AffStats.Value = 1;
    for (const char* titre : {"Bleu", "Avatar"})
        ajouteFilm(titre);
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_EQ(arbreEnTexte(), (Lignes{"K1=Avatar", "K2=Bleu"}));
}

TEST_F(AfficheTitresTest, PercentagesAreCutToOneDecimal) {
    const std::string virgule = systeme::separateurDecimal();
    ajouteFilm("A", {{"Genre", "Drame"}});
    ajouteFilm("B", {{"Genre", "Comédie"}});
    ajouteFilm("C", {{"Genre", "Comédie"}});
    liste.AffStats.Value = 1;
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(liste.TreeView1.Nodes.Text(1), "Comédie (66" + virgule + "6 %)");
    EXPECT_EQ(liste.TreeView1.Nodes.Text(4), "Drame (33" + virgule + "3 %)");
    for (int i = 0; i < 97; ++i)  // 29 of 100: its quotient lies below 0.29
        ajouteFilm("D", {{"Genre", i < 28 ? "Drame" : "Comédie"}});
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.Nodes.enfants(0)[1]), "Drame (29 %)");
    liste.AffStats.Value = 2;
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(liste.TreeView1.Nodes.Text(1), "Comédie");
}

TEST_F(AfficheTitresTest, TickingStatisticsChangesTheHeadingsAlone) {
    ajouteFilm("Avatar", {{"Genre", "Drame"}, {"Realisateur", "R"}});
    ajouteFilm("Brazil", {{"Genre", "Drame"}});
    montre(browse::kZoneTous, browse::kTriGenre);
    const int remplissages = liste.TreeView1.Nodes.generation();
    clique("Avatar");
    liste.TreeView1.coches = {3};
    const auto bascule = [&](int valeur) {
        liste.AffStats.Value = valeur;
        AffStats_Click(c);
        return std::string(liste.TreeView1.Nodes.Text(1));
    };
    EXPECT_EQ(bascule(1), "Drame (100 %)");
    EXPECT_EQ(bascule(1), "Drame (100 %)");
    EXPECT_EQ(bascule(0), "Drame");
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    EXPECT_EQ(film.titre, "Avatar");
    EXPECT_EQ(liste.TreeView1.SelectedItem, 2);
    EXPECT_EQ(liste.TreeView1.coches, std::set<int>{3});
    EXPECT_EQ(liste.TreeView1.Nodes.generation(), remplissages);
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_EQ(bascule(1), "Avatar");
}

// The window lives on while a tree is filled: it shows the old one, whose rows are those of the old listing, to the end.
TEST_F(AfficheTitresTest, ATreeIsFilledAsideAndTakesItsPlaceWithItsListing) {
    base.base.BeginTrans();
    for (int i = 0; i < 300; ++i)
        ajouteFilm(("Film " + std::to_string(i)).c_str(), {{"Genre", i % 2 == 0 ? "Drame" : "Comédie"}});
    base.base.CommitTrans();
    montre(browse::kZoneTous, browse::kTriGenre);
    const Lignes avant = arbreEnTexte();
    const int generation = liste.TreeView1.Nodes.generation();
    browse::Contexte presse = fenetre;
    std::chrono::steady_clock::time_point heure;
    presse.montre = [&heure] { return heure += std::chrono::seconds(1); };
    const auto neuve = [this] { return base.base.OpenRecordset("SELECT * FROM Films ORDER BY Titre ASC"); };
    const auto estComme = [&](const Lignes& arbre, const char* premier) {
        base.liste.MoveFirst();
        return arbreEnTexte() == arbre && base.liste.texte("Titre") == premier;
    };
    int souffles = 0;
    ecranMuet.pendantPatience = [&] {
        ++souffles;
        EXPECT_EQ(liste.TreeView1.Nodes.generation(), generation);
        EXPECT_TRUE(estComme(avant, "Film 1"));
        throw dao::ErreurDao(dao::kErreurDisque, "plein");
    };
    EXPECT_THROW(browse::AfficheTitres(presse, neuve(), browse::kTriTitre2), dao::ErreurDao);
    EXPECT_TRUE(estComme(avant, "Film 1")) << "what throws leaves both";
    EXPECT_EQ(souffles, 1);

    ecranMuet.pendantPatience = [&] { EXPECT_EQ(arbreEnTexte(), avant); };
    browse::AfficheTitres(presse, neuve(), browse::kTriTitre2);
    EXPECT_EQ(liste.TreeView1.Nodes.Count(), 300);
    EXPECT_TRUE(estComme(arbreEnTexte(), "Film 0"));
    EXPECT_EQ(liste.TreeView1.Nodes.generation(), generation + 1);

    ecranMuet.pendantPatience = nullptr;
}

// A title, a genre and a cast of five million characters: through the listing, the headings, the sheet and the search.
TEST_F(AfficheTitresTest, HugeFieldsAreListedShownAndSearched) {
    const std::string longue(5'000'000, 'e');
    const std::string distribution = longue + ";œ";
    for (const char* autre : {"Avatar", "Zorro"})
        ajouteFilm(autre, {{"Realisateur", ""}, {"Genre", longue + " "}, {"Acteurs", ""}});
    ajouteFilm(longue.c_str(), {{"Realisateur", longue}, {"Genre", longue}, {"Acteurs", distribution}});
    possede(longue.c_str(), longue.c_str());
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(liste.TreeView1.Nodes.enfants(0).size(), 1U);
    EXPECT_EQ(liste.TreeView1.Nodes.Text(3), longue);
    TreeView1_NodeClick(c, 3);
    EXPECT_EQ(fiche.Label1[0].Caption, longue);
    EXPECT_EQ(fiche.lblInfosActeurs.Caption.size(), distribution.size() + 1);
    EXPECT_TRUE(fiche.Option1[1].Value);
    SelectionneTitre(c, {"ZORRO", longue});  // nobody, after a comparison with everyone
    EXPECT_EQ(film.titre, longue);
    montre(browse::kZoneMesFilms, browse::kTriTitre1);
    EXPECT_EQ(titres(), Lignes{longue});
    recherche.Text2.Text = std::string(1'000'000, 'E') + "f";
    recherche.ZoneRecherche[3].Value = 1;
    cmdRecherche_Click(c);
    EXPECT_TRUE(titres().empty());
    recherche.Text2.Text = "eeE;OE";
    recherche.ZoneRecherche[0].Value = 0;
    cmdRecherche_Click(c);
    EXPECT_EQ(titres(), Lignes{longue});
}

TEST_F(AfficheTitresTest, TicksStayOnFilms) {
    ajouteFilm("Avatar");
    montre(browse::kZoneTous, browse::kTriTitre1);
    TreeView1_NodeCheck(c, 2, true);
    EXPECT_EQ(liste.TreeView1.coches, std::set<int>{2});
    dialogues.attendMsgBox("Choisissez un titre plutôt qu'une catégorie.", 48);
    TreeView1_NodeCheck(c, 1, true);
    EXPECT_EQ(liste.TreeView1.coches, std::set<int>{2});
    TreeView1_NodeCheck(c, 2, false);
    EXPECT_TRUE(liste.TreeView1.coches.empty());
}

TEST_F(AfficheTitresTest, TheRightButtonAsksForTheMenuOfItsNode) {
    ajouteFilm("Avatar", {{"Genre", "Drame"}, {"Realisateur", "R"}});
    possede("Avatar", "R", {{"Support", "DVD"}});
    using browse::MenuArbre;
    EXPECT_EQ(TreeView1_MouseUp(c, 0), MenuArbre::Aucun);
    const std::pair<int, MenuArbre> cas[]{{browse::kTriGenre, MenuArbre::Genre},
                                          {browse::kTriSupport, MenuArbre::Support},
                                          {browse::kTriTitre1, MenuArbre::Aucun}};
    for (const auto& [tri, menu] : cas) {
        montre(browse::kZoneMesFilms, tri);
        EXPECT_EQ(TreeView1_MouseUp(c, 1), menu) << tri;
        EXPECT_EQ(TreeView1_MouseUp(c, 2), MenuArbre::Film);
        EXPECT_EQ(film.titre, "Avatar");  // the click's work first
        EXPECT_EQ(liste.cleCliquee, "K1");
    }
}

}  // namespace
