#include "browse/TreeView1.h"
#include "browse/cmdRecherche_Click.h"
#include "ensemble/MurDAffiches.h"
#include "ensemble/PlanDuMur.h"
#include "unit/edit/FenetreEdition.h"

#include <set>

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::IsEmpty;

struct MurDAffichesTest : FenetreEdition {
    [[nodiscard]] Mur mur(const LignesVues* vues = nullptr) const {
        return murDAffiches(liste, browse::pageDuGroupe(liste), vues, {});
    }
    // "Heading: film film", section by section.
    [[nodiscard]] std::vector<std::string> textes(const Mur& m) const {
        std::vector<std::string> resultat;
        const browse::Arbre& arbre = liste.TreeView1.Nodes;
        int tuile = 0;
        for (std::size_t i = 0; i < m.sections.size(); ++i) {
            resultat.push_back(m.titre(arbre, i) + ":");
            for (const int fin = tuile + m.sections[i].nombre; tuile < fin; ++tuile)
                resultat.back() += " " + std::string(arbre.Text(m.noeud(arbre, tuile)));
        }
        EXPECT_EQ(tuile, m.nombre());
        return resultat;
    }
    [[nodiscard]] static std::vector<std::string> titres(const RangeeDuMur& rangee) {
        std::vector<std::string> resultat;
        for (const FilmDuMur& film : rangee.films)
            resultat.push_back(film.film.titre);
        return resultat;
    }
};

TEST_F(MurDAffichesTest, HasTheFilmsOfTheListingUnderItsHeadings) {
    for (const auto& [titre, genre] : {std::pair("A", "Drame"), std::pair("B", "Comédie"), std::pair("Été", "Drame")})
        ajouteFilm(titre, {{"Genre", genre}});
    ajouteFilm("D");
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_THAT(textes(mur()), ElementsAre("Hors tri !: D", "Comédie: B", "Drame: A Été"));

    const browse::Arbre& arbre = liste.TreeView1.Nodes;
    LignesVues vues(4);
    vues.ajoute(arbre.position(noeud("Été")));
    const Mur filtre = mur(&vues);
    EXPECT_THAT(textes(filtre), ElementsAre("Drame: Été")) << "an emptied heading goes";
    EXPECT_EQ(compteDuMur(filtre, browse::pageDuGroupe(liste)), "1 film sur 4");

    TreeView1_NodeClick(c, arbre.enfants(0)[2]);
    EXPECT_THAT(textes(mur()), ElementsAre(": A Été"));
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_THAT(textes(mur()), ElementsAre(": A B D Été"));
    EXPECT_EQ(tuileQuiCommencePar(mur(), arbre, "ete", 0), 3) << "accents make no difference";
    EXPECT_EQ(tuileQuiCommencePar(mur(), arbre, "b", 2), 1) << "in turn";
    EXPECT_EQ(tuileQuiCommencePar(mur(), arbre, "x", 0), -1);
    EXPECT_EQ(nomDuFilm("Alien", "Ridley Scott", "1979"), "Alien, de Ridley Scott, 1979");
    EXPECT_EQ(nomDuFilm("Alien", "", ""), "Alien");
}

TEST_F(MurDAffichesTest, BeginsWithWhatWasAddedWhatIsLentAndWhatIsToWatch) {
    EXPECT_THAT(rangeesDuMur(c), IsEmpty()) << "an empty base";
    for (const auto& [titre, note] : {std::pair("Note basse", 4), std::pair("Noté", 9), std::pair("Pas noté", 0)}) {
        ajouteFilm(titre, {{"Realisateur", "R"}, {"Annee", "1979"}, {"Note", note}});
        possede(titre, "R", {{"Pret", ""}});
    }
    ajouteFilm("Prêté", {{"Realisateur", "R"}});
    possede("Prêté", "R", {{"Pret", "Zoé"}});
    possede("Orphelin", "R", {{"Pret", "Zoé"}});
    ajouteFilm("Autre", {{"Realisateur", "R"}});
    auto rangees = rangeesDuMur(c);
    ASSERT_EQ(rangees.size(), 3U);
    EXPECT_THAT(titres(rangees[0]), ElementsAre("Autre", "Prêté", "Pas noté", "Noté", "Note basse")) << "newest first";
    EXPECT_EQ(rangees[0].films[2], (FilmDuMur{{"Pas noté", "R"}, "1979"}));
    EXPECT_THAT(titres(rangees[1]), ElementsAre("Prêté"));
    EXPECT_THAT(titres(rangees[2]), ElementsAre("Pas noté"));
    base.base.Execute("DELETE FROM Films WHERE Titre = 'Pas noté'");
    rangees = rangeesDuMur(c);
    EXPECT_THAT(titres(rangees[2]), ElementsAre("Noté")) << "where all are rated, the best";

    montre(browse::kZoneTous, browse::kTriTitre1);
    EXPECT_TRUE(peutAvoirDesRangees(liste, browse::pageDuGroupe(liste)));
    const Mur avec = murDAffiches(liste, browse::pageDuGroupe(liste), nullptr, rangees);
    EXPECT_TRUE(avec.sections.front().uneLigne);
    EXPECT_EQ(tuileQuiCommencePar(avec, liste.TreeView1.Nodes, "p", 0), 9) << "that of the listing";
    montre(browse::kZonePretes, browse::kTriTitre1);
    EXPECT_FALSE(peutAvoirDesRangees(liste, browse::pageDuGroupe(liste)));
}

// Two lines and a half of three tiles in sight.
TEST(PlanDuMur, SaysWhereTilesStandAndWhichAreWantedFirst) {
    const PlanDuMur plan(
        {{.nombre = 9, .entete = true, .uneLigne = true}, {.nombre = 4, .entete = true}, {.nombre = 300}},
        {.largeur = 320, .tuile = 100, .sousLAffiche = 20, .espace = 10, .entete = 30});
    EXPECT_EQ(plan.colonnes(), 3);
    EXPECT_EQ(plan.place(2), (PlanDuMur::Place{220, 30, 100, 170}));
    EXPECT_EQ(plan.place(3).largeur, 0) << "no room in its one line";
    EXPECT_EQ(plan.place(9), (PlanDuMur::Place{0, 240, 100, 170}));
    EXPECT_EQ(plan.place(13), (PlanDuMur::Place{0, 600, 100, 170})) << "a section begins a line";
    for (const int tuile : {0, 2, 9, 12, 13, 312}) {
        const auto place = plan.place(tuile);
        EXPECT_EQ(plan.tuileA(place.x + 99, place.y + 169), tuile);
    }
    EXPECT_EQ(plan.tuileA(105, 100), -1);
    EXPECT_EQ(plan.tuileA(0, 29), -1);
    EXPECT_EQ(plan.tuileA(0, plan.hauteur() + 50), -1);

    const auto voulues = plan.voulues(6000, 6450, true);
    const auto enVue = static_cast<std::ptrdiff_t>(plan.enVue(6000, 6450));
    EXPECT_EQ(std::set<int>(voulues.begin(), voulues.end()).size(), voulues.size()) << "none twice";
    for (auto tuile = voulues.begin(); tuile != voulues.end(); ++tuile) {
        const auto place = plan.place(*tuile);
        const bool vue = place.y < 6450 && place.y + place.hauteur > 6000;
        EXPECT_EQ(vue, tuile - voulues.begin() < enVue) << *tuile;
    }
    EXPECT_GT(voulues[static_cast<std::size_t>(enVue)], voulues[static_cast<std::size_t>(enVue) - 1]);
    EXPECT_LT(plan.voulues(6000, 6450, false)[static_cast<std::size_t>(enVue)], voulues[0]) << "where one scrolls to";

    using enum PlanDuMur::Pas;
    EXPECT_EQ(plan.deplace(-1, Bas, 450), 0);
    EXPECT_EQ(plan.deplace(2, Droite, 450), 9) << "over those that are not shown";
    EXPECT_EQ(plan.deplace(1, Bas, 450), 10);
    EXPECT_EQ(plan.deplace(11, Bas, 450), 12) << "the last one of a shorter line";
    EXPECT_EQ(plan.deplace(14, Haut, 450), 12);
    EXPECT_EQ(plan.deplace(20, PageBas, 450), 26);
    EXPECT_EQ(plan.deplace(1, PageHaut, 450), 1);
    EXPECT_EQ(plan.deplace(20, Debut, 450), 0);
    EXPECT_EQ(plan.deplace(0, Fin, 450), 312);
    EXPECT_EQ(PlanDuMur({}, {}).deplace(-1, Fin, 450), -1);
    EXPECT_EQ(PlanDuMur({{.nombre = 3}}, {.largeur = 10, .tuile = 100}).colonnes(), 1) << "however narrow";
}

}  // namespace
