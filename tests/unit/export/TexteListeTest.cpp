#include "export/TexteListe.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

using exportation::FilmDeLaListe;
using exportation::TexteListe;

std::string liste(bool parGenre, const std::vector<FilmDeLaListe>& films) {
    TexteListe texte(parGenre);
    for (const FilmDeLaListe& film : films)
        texte.ajoute(film);
    return texte.texte();
}

const FilmDeLaListe kEte{"L'Été \"violent\"", "Valerio Zurlini", "1H40",      "Drame",    "1959", "Italie", "Luc",
                         "Un été.",           "Étagère",         "a\tb\r\nc", "DVD\u2028"};
const FilmDeLaListe kVide{};
const FilmDeLaListe kOeuvre{"L'Œuvre", "Ève", "", "Comédie", "2001", "", "", "", "", "", "K7"};

TEST(TexteListe, NumbersTheWholeListAndShowsTheGenres) {
    EXPECT_EQ(liste(false, {kEte, kVide, kOeuvre}),
              "Il y a 3 titres personnels\r\n\r\n"
              " 1. \tL'Été \"violent\"\tValerio Zurlini\tDrame\t1959\tÉtagère\ta b c\tDVD \r\n"
              " 2. \t\t\t\t\t\t\t\r\n"
              " 3. \tL'Œuvre\tÈve\tComédie\t2001\t\t\tK7\r\n");
    EXPECT_EQ(liste(false, {kOeuvre}), "Il y a 1 titre personnel\r\n\r\n 1. \tL'Œuvre\tÈve\tComédie\t2001\t\t\tK7\r\n");
}

// An empty first genre has no heading, an empty one later has: it is a change like any other.
TEST(TexteListe, NumbersEachGenreUnderItsHeading) {
    EXPECT_EQ(liste(true, {kVide, kOeuvre, kOeuvre, kVide, kEte}),
              "Il y a 5 titres personnels\r\n\r\n"
              " 1. \t\t\t\t\t\t\r\n"
              "\r\n Genre : Comédie\r\n"
              " 1. \tL'Œuvre\tÈve\t2001\t\t\tK7\r\n"
              " 2. \tL'Œuvre\tÈve\t2001\t\t\tK7\r\n"
              "\r\n Genre : \r\n"
              " 1. \t\t\t\t\t\t\r\n"
              "\r\n Genre : Drame\r\n"
              " 1. \tL'Été \"violent\"\tValerio Zurlini\t1959\tÉtagère\ta b c\tDVD \r\n");
}

}  // namespace
