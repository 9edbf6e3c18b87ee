#include "doubles/DossierTemporaire.h"
#include "voisins/Tableau.h"

#include <gmock/gmock.h>

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using voisins::Colonne;

TEST(Tableau, FindsItsSeparatorItsEncodingAndItsColumns) {
    struct Cas {
        std::string octets;
        char separateur;
        std::string codage;
    };
    const Cas cas[] = {
        {"Titre;R\xE9"
         "alisateur;Ann\xE9"
         "e\r\nL'\x8Cuvre, 1;X;1999\r\n",
         ';', "Windows-1252"},
        {"\xEF\xBB\xBFTitle,Director,Year\n\"L'Œuvre, 1\",X,1999\n", ',', "UTF-8"},
        {"Titre\tRéalisateurs\tAnnée de sortie\nL'Œuvre, 1\tX\t1999\n", '\t', "UTF-8"},
        {"sep=|\nTITRE |realisateur|Date de sortie\nL'Œuvre, 1|X|1999\n", '|', "UTF-8"},
        {"\xFF\xFET\0i\0t\0r\0e\0;\0R\0\xE9\0"
         "a\0l\0i\0s\0"
         "a\0t\0"
         "e\0u\0r\0;\0"
         "A\0n\0n\0\xE9\0"
         "e\0\n\0L\0'\0\x52\x01u\0v\0r\0"
         "e\0,\0 \0"
         "1\0;\0X\0;\0"
         "1\0"
         "9\0"
         "9\0"
         "9\0"s,
         ';', "Unicode"},
    };
    for (const auto& [octets, separateur, codage] : cas) {
        const auto tableau = voisins::analyseTableau(octets);
        EXPECT_EQ(tableau.separateur, separateur) << octets;
        EXPECT_EQ(tableau.codage, codage) << octets;
        EXPECT_THAT(tableau.colonnes, ElementsAre(Colonne::Titre, Colonne::Realisateur, Colonne::Annee)) << octets;
        EXPECT_THAT(tableau.lignes, ElementsAre(ElementsAre("L'Œuvre, 1", "X", "1999"))) << octets;
    }
    EXPECT_THAT(voisins::cellules("a;\"b;\r\n\"\"c\"\"\";d\n\n;e\n", ';'),
                ElementsAre(ElementsAre("a", "b;\r\n\"c\"", "d"), ElementsAre("", "e")));
    EXPECT_THAT(voisins::cellules("a;\"b\nc", ';'), ElementsAre(ElementsAre("a", "\"b"), ElementsAre("c")))
        << "a quote that nothing closes is no quote";
}

TEST(Tableau, ItsLinesBecomeFilmsAndNothingIsLost) {
    auto tableau = voisins::analyseTableau(
        "Titre;Réalisateur;Durée (min);Note /5;Prêté à;Prêté le;Possédé;Support;Cote;Genre;Titre\n"
        "Été 85;François Ozon;100;4,5;Léo;2024-05-06;oui;dvd;B12;Drama / Romance;en trop\n"
        "Sans suite;;;;;;non;;;;\n;x;;;;;;;;;\n");
    const auto lue = voisins::collectionDe(tableau);
    ASSERT_EQ(lue.films.size(), 2U);
    const voisins::FilmVoisin& film = lue.films[0];
    EXPECT_EQ(film.titre + film.duree + film.genre, "Été 851H40Drame / Romance");
    EXPECT_EQ(film.note, 9);
    EXPECT_EQ(film.resume, "Cote : B12\r\nTitre : en trop");
    ASSERT_TRUE(film.possession);
    EXPECT_EQ(film.possession->pret + film.possession->date + film.possession->support, "Léo06/05/2024dvd");
    EXPECT_EQ(lue.films[1].realisateur, "Non défini");
    EXPECT_FALSE(lue.films[1].possession);
    EXPECT_THAT(lue.remarques, ElementsAre("Notes lues sur 5.", "1 fiche sans titre laissée de côté."));
    const auto copies = voisins::collectionDe(voisins::analyseTableau(
        "Titre;Possédé;Support;Date de possession;Réservé pour;Fichier 1;Fichier 2;Genre\n"
        "'=A;oui;DVD;;;;b.avi;War\n'=A;oui;K7;01/02/2003;Zoé;;;War\n'=A;oui;K7;01/02/2003;Zoé;;;War\nB;;;;;;;\n"));
    ASSERT_EQ(copies.films.size(), 2U);
    EXPECT_EQ(copies.films[0].titre + copies.films[0].genre + copies.films[0].possession->fichiers[0], "=AGuerreb.avi");
    ASSERT_EQ(copies.films[0].autres.size(), 1U);
    EXPECT_EQ(copies.films[0].autres[0].support + copies.films[0].autres[0].date + copies.films[0].autres[0].reserve,
              "VHS01/02/2003Zoé");
    EXPECT_FALSE(copies.films[1].possession) << "where a column says what is owned, an empty cell says no";
    tableau.colonnes[0] = Colonne::Ignoree;
    EXPECT_THROW(static_cast<void>(voisins::collectionDe(tableau)), voisins::Refus);
    const auto sansEntetes = voisins::analyseTableau("Alien\nBrazil\n");
    EXPECT_EQ(voisins::collectionDe(sansEntetes).films.size(), 2U) << "a list of titles";
}

}  // namespace
