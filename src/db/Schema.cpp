#include "db/Schema.h"

#include <string>

namespace db {

namespace {

// The row ids are declared, since compaction renumbers those that are not; the poster comes last, so that reading the
// other fields of a row stops before it.
constexpr std::string_view kTables = R"(
PRAGMA user_version = 1;
CREATE TABLE Films (
  id INTEGER PRIMARY KEY,
  Titre TEXT,
  Realisateur TEXT,
  Annee TEXT,
  Origine TEXT,
  Genre TEXT,
  Duree TEXT,
  Acteurs TEXT,
  Resume TEXT,
  Production TEXT,
  Note INTEGER,
  DateAjout TEXT,
  Affiche BLOB
);
CREATE TABLE Personnel (
  id INTEGER PRIMARY KEY,
  Titre2 TEXT,
  Realisateur2 TEXT,
  Rangement TEXT,
  Fichier1 TEXT,
  Fichier2 TEXT,
  Fichier3 TEXT,
  Pret TEXT,
  Reserve TEXT,
  Date TEXT,
  Divers TEXT,
  Support TEXT
);
)";

// Each index holds every column that a listing reads, that of one day's additions included: no listing ever reads a
// row, whose summary and poster take the most of it. They are plain indexes: any tool that edits the file keeps them
// right.
constexpr std::string_view kIndex = R"(
CREATE INDEX IF NOT EXISTS FilmsListe ON Films (Titre, Realisateur, Annee, Genre, Origine, Duree, Note, DateAjout);
CREATE INDEX IF NOT EXISTS PersonnelListe ON Personnel (Titre2, Realisateur2, Pret, Reserve, Support);
)";

}  // namespace

std::string_view schema() {
    static const std::string texte = std::string(kTables) + std::string(kIndex);
    return texte;
}

std::vector<dao::Cle> clesDesTables() {
    return {{"Titre", "Realisateur"}, {"Titre2", "Realisateur2"}};
}

std::string_view indexDesListes() {
    return kIndex;
}

}  // namespace db
