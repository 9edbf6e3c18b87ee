#pragma once

#include "db/CleFilm.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// What an import would do with each film that it reads, told before anything is written. Whoever imports films judges
// them by edit::JugeFilms, before and during, so that both say the same.
namespace edit {

// A film as a sheet, or another program, tells it: each field cut to its column, except the summary.
struct FilmLu : db::CleFilm {
    std::string annee, origine, genre, duree, acteurs, resume, production;
};

// What the catalogue has of it when its turn comes.
enum class SortDuFilm {
    Nouveau,
    DejaLa,       // a film of its name, in the base or earlier in the same import
    Ressemblant,  // to one or several
    Illisible     // there is no film to judge
};

// What becomes of the poster that comes with it.
enum class SortDeLAffiche { SansObjet, Prise, Absente, TropGrande, Illisible };

struct FilmProche {
    db::CleFilm film;
    int titre = 0, realisateur = 0;  // per cent
};

struct FilmExamine {
    FilmLu film;
    std::string provenance;  // how it is found again where it comes from: a file's name, a line's number
    SortDuFilm sort = SortDuFilm::Nouveau;
    bool duLot = false;                  // DejaLa: by a film that comes earlier in the same import
    std::optional<FilmProche> proche{};  // Ressemblant: the closest film
    std::size_t autresProches = 0;       // and how many more
    SortDeLAffiche affiche = SortDeLAffiche::SansObjet;
    std::vector<std::string> aCompleter{};  // DejaLa: columns that are empty in the base, and that it can fill
    std::string remarque{};                 // what else is to be known before it is imported
};

// The films of a preview that are listed together; a film can be of several kinds.
enum class GenreDExamen { Tous, Nouveaux, DejaLa, Ressemblants, AProbleme };
[[nodiscard]] bool estDuGenre(const FilmExamine& film, GenreDExamen genre);

[[nodiscard]] bool peutEtreAjoute(const FilmExamine& film);    // Nouveau, or Ressemblant
[[nodiscard]] bool peutEtreComplete(const FilmExamine& film);  // DejaLa in the base, with something to fill

// "Nouveau", "Ressemble à « Solaris » à 93 %", "Déjà là : année, affiche à compléter"…
[[nodiscard]] std::string texteDuSort(const FilmExamine& film);
// "absente", "trop grande"…; empty without object.
[[nodiscard]] std::string texteDeLAffiche(SortDeLAffiche affiche);
// The lowest of both scores, by which a film is told to resemble.
[[nodiscard]] int pourCent(const FilmProche& proche);
// "43 films lus : 38 nouveaux, 4 déjà là, 1 qui ressemble à un autre…"
[[nodiscard]] std::string bilan(const std::vector<FilmExamine>& films);

}  // namespace edit
