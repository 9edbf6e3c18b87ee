#include "browse/MarquesFilm.h"
#include "unit/browse/Fenetre.h"

namespace {

using browse::marquesDuNoeud;
using namespace std::chrono_literals;

class MarquesFilmTest : public Fenetre {
  protected:
    std::string marques(const char* titre) {
        EXPECT_TRUE(browse::suisLesMarques(c, 1h));
        return texteDesMarques(marquesDuNoeud(c, noeud(titre)));
    }
};

TEST_F(MarquesFilmTest, FollowTheHoldingsAndTheRatingWithoutListingAnew) {
    ajouteFilm("Cléo de 5 à 7", {{"Realisateur", "Agnès Varda"}, {"Annee", "1962"}, {"Note", 9}});
    ajouteFilm("L'œuvre", {{"Realisateur", ""}});
    ajouteFilm("Zorro");
    possede("CLEO DE 5 A 7", "Agnès Varda");
    possede("L'OEUVRE ", "", {{"Pret", "Paul"}, {"Reserve", ""}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_TRUE(marquesDuNoeud(c, noeud("L'œuvre")).estVide()) << "not known yet";
    EXPECT_EQ(marques("Cléo de 5 à 7"), "noté 9/10") << "accents count";
    EXPECT_EQ(marques("L'œuvre"), "possédé, prêté");
    EXPECT_EQ(marques("Zorro"), "");

    possede("zorro", "", {{"Reserve", "Hélène"}});
    base.personnel.MoveFirst();
    base.personnel.Edit();
    base.personnel.assigne("Titre2", "Cléo de 5 à 7");
    base.personnel.Update();
    base.films.MoveFirst();
    base.films.Edit();
    base.films.assigne("Note", 4);
    base.films.Update();
    base.liste.MoveFirst();
    base.liste.Move(2);
    EXPECT_EQ(marques("Zorro"), "possédé, réservé");
    EXPECT_EQ(marques("Cléo de 5 à 7"), "possédé, noté 4/10");
    EXPECT_EQ(browse::infobulleDuNoeud(c, noeud("Cléo de 5 à 7")),
              "Cléo de 5 à 7\nAgnès Varda, 1962\nPossédé, noté 4/10");
    EXPECT_EQ(base.liste.texte("Titre"), "Zorro") << "the listing's record stays";

    base.personnel.MoveNext();
    base.personnel.Delete();
    base.films.Delete();
    EXPECT_EQ(marques("L'œuvre"), "");
    EXPECT_EQ(marques("Cléo de 5 à 7"), "") << "its row is gone";
    EXPECT_EQ(browse::infobulleDuNoeud(c, noeud("Cléo de 5 à 7")), "");
}

// Holdings are put in order block by block as they are read: each is found wherever its block lies.
TEST_F(MarquesFilmTest, EveryHoldingOfManyIsKnown) {
    constexpr int kPossedes = 2 * 8192 + 100;
    base.base.BeginTrans();
    for (int i = 0; i < kPossedes; ++i)
        possede(std::to_string(i).c_str(), "", {{"Pret", i % 3 == 0 ? "Paul" : ""}});
    base.base.CommitTrans();
    ASSERT_TRUE(browse::suisLesMarques(c, 1h));
    for (int i = 0; i < kPossedes; ++i) {
        const browse::Possession connue = liste.possedes.cherche(std::to_string(i), "");
        ASSERT_TRUE(connue.possede && connue.prete == (i % 3 == 0)) << i;
    }
    EXPECT_FALSE(liste.possedes.cherche(std::to_string(kPossedes), "").possede);
}

}  // namespace
