#include "ensemble/Statistiques.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::HasSubstr;

class StatistiquesTest : public FenetreEdition {
  protected:
    void SetUp() override {
        Fenetre::SetUp();
        ajouteFilm("Alien", {{"Realisateur", "Ridley Scott"},
                             {"Annee", "1979"},
                             {"Genre", "Horreur/Science-fiction"},
                             {"Origine", "États-Unis, Royaume-Uni"},
                             {"Duree", "1H57"},
                             {"Note", 9},
                             {"DateAjout", "02/11/2026"}});
        ajouteFilm("Brazil", {{"Realisateur", "Terry Gilliam"},
                              {"Annee", "1985 ?"},
                              {"Genre", "science-fiction "},
                              {"Origine", "Royaume-Uni"},
                              {"Duree", "2h"},
                              {"DateAjout", "30/10/2026"}});
        ajouteFilm("Delicatessen", {{"Realisateur", "Jean-Pierre Jeunet et Marc Caro"},
                                    {"Annee", "1991"},
                                    {"Genre", "Drame"},
                                    {"Note", "7.5"},
                                    {"DateAjout", "05/11/2026"}});
        ajouteFilm("Sans rien");
        possede("Alien", "Ridley Scott", {{"Support", "DVD"}});
        possede("Sans rien", "", {{"Support", "dvd"}});
    }
    std::vector<std::string> barres(Sujet sujet) {
        for (const Diagramme& diagramme : statistiques(c))
            if (diagramme.sujet == sujet) return enTexte(diagramme);
        return {};
    }
    static std::vector<std::string> enTexte(const Diagramme& diagramme) {
        std::vector<std::string> textes;
        for (const Barre& barre : diagramme.barres) {
            std::string texte = barre.libelle + (barre.manquante ? "?" : "") + ":";
            for (const std::uint32_t ligne : barre.lignes)
                texte += " " + std::to_string(ligne);
            textes.push_back(texte);
        }
        return textes;
    }
};

TEST_F(StatistiquesTest, EachBarKnowsItsFilms) {
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_THAT(barres(Sujet::Genre), ElementsAre("Science-fiction: 1 2", "Drame: 3", "Horreur: 1", "Sans genre?: 4"));
    EXPECT_THAT(barres(Sujet::Decennie),
                ElementsAre("Années 1970: 1", "Années 1980: 2", "Années 1990: 3", "Sans année?: 4"));
    EXPECT_THAT(barres(Sujet::Pays), ElementsAre("Royaume-Uni: 1 2", "États-Unis: 1", "Sans origine?: 3 4"));
    EXPECT_THAT(barres(Sujet::Realisateur), ElementsAre("Jean-Pierre Jeunet: 3", "Marc Caro: 3", "Ridley Scott: 1",
                                                        "Terry Gilliam: 2", "Sans réalisateur?: 4"));
    EXPECT_THAT(barres(Sujet::Note), ElementsAre("9/10: 1", "8/10: 3", "Non notés?: 2 4"));
    EXPECT_THAT(barres(Sujet::Duree), ElementsAre("1 h 30 à 1 h 59: 1", "2 h à 2 h 29: 2", "Durée inconnue?: 3 4"));
    EXPECT_THAT(barres(Sujet::Ajouts), ElementsAre("octobre 2026: 2", "novembre 2026: 1 3", "Date inconnue?: 4"));
    EXPECT_THAT(barres(Sujet::Support), ElementsAre("DVD: 1 4", "Sans support?: 2 3"))
        << "the listing of all films has no holdings: they are looked up";
}

TEST_F(StatistiquesTest, OnlyTheListingIsCounted) {
    montre(browse::kZoneMesFilms, browse::kTriTitre2);
    EXPECT_THAT(barres(Sujet::Support), ElementsAre("DVD: 1 2"));
    EXPECT_THAT(barres(Sujet::Genre), ElementsAre("Horreur: 1", "Science-fiction: 1", "Sans genre?: 2"));
    montre(browse::kZonePretes, browse::kTriTitre2);
    EXPECT_THAT(barres(Sujet::Genre), ElementsAre());
}

TEST_F(StatistiquesTest, ALongChartEndsInOneBarForTheOthers) {
    montre(browse::kZoneTous, browse::kTriTitre2);
    const Diagramme genres = statistiques(c)[0];
    EXPECT_THAT(enTexte(abrege(genres, 3)), ElementsAre("Science-fiction: 1 2", "Autres (2): 1 3", "Sans genre?: 4"));
    EXPECT_EQ(enTexte(abrege(genres, 4)), enTexte(genres));
    EXPECT_EQ(abrege(genres, 0).barres.size(), 2U);
}

TEST_F(StatistiquesTest, NumbersStandBesideTheBarsInTextAndDrawing) {
    const Diagramme diagramme{
        Sujet::Genre, "Films <par> genre", {{"\"A\" & B\x01\xff", {1, 2}}, {std::string(40, 'x'), {3}}}, 3};
    const std::string virgule = systeme::separateurDecimal();
    EXPECT_EQ(texteDuNombre(diagramme, diagramme.barres[0]), "2 (66" + virgule + "6 %)");
    EXPECT_EQ(texte({Sujet::Genre, "T", {{"A", {1}}}, 1}), "T\nA\t1 (100 %)\n");
    const std::string dessin = svg(diagramme, 600);
    EXPECT_THAT(dessin, HasSubstr("<title>Films &lt;par&gt; genre</title>"));
    EXPECT_THAT(dessin, HasSubstr(">&quot;A&quot; &amp; B\uFFFD\uFFFD</text>"));
    EXPECT_THAT(dessin, HasSubstr(">" + std::string(27, 'x') + "…</text>"));
    EXPECT_THAT(dessin, HasSubstr(">2 (66" + virgule + "6 %)</text>"));
    EXPECT_THAT(dessin, HasSubstr("width=\"260\" height=\"16\"")) << "the longest bar has all the room there is";
    EXPECT_THAT(dessin, HasSubstr("width=\"130\" height=\"16\""));
    EXPECT_THAT(svg({Sujet::Genre, "Vide", {}, 0}, 0), HasSubstr("</svg>"));
}

}  // namespace
