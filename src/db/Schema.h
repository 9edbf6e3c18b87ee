#pragma once

#include "platform/dao/Database.h"

#include <string_view>
#include <vector>

namespace db {

// What a film and a holding are found by: for dao::Database::declareCles.
[[nodiscard]] std::vector<dao::Cle> clesDesTables();

// The statements that make an empty base: the two tables with their published fields, and the plain indexes that the
// listings read instead of the rows. The template "Modele.dat" is made from it by the build.
[[nodiscard]] std::string_view schema();

// What a base made elsewhere may lack and is given at its opening: the plain indexes. Each statement is harmless when
// its index stands already. Each index holds every column that a listing reads, that of one day's additions included: no
// listing ever reads a row, whose summary and poster take the most of it. They are plain: any tool that edits the file
// keeps them right.
inline constexpr std::string_view kIndexDesListes = R"(
CREATE INDEX IF NOT EXISTS FilmsListe ON Films (Titre, Realisateur, Annee, Genre, Origine, Duree, Note, DateAjout);
CREATE INDEX IF NOT EXISTS PersonnelListe ON Personnel (Titre2, Realisateur2, Pret, Reserve, Support);
)";

}  // namespace db
