#pragma once

#include "browse/PageDuGroupe.h"
#include "ensemble/Contexte.h"
#include "ensemble/LignesVues.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ensemble {

// What the wall of posters shows: the films of the listing, or of its chosen heading, under the headings of the tree. On
// the first page, lines of films to begin with stand above them.

// A film of such a line, which the listing need not have.
struct FilmDuMur {
    db::CleFilm film;
    std::string annee;
    friend bool operator==(const FilmDuMur&, const FilmDuMur&) = default;
};
struct RangeeDuMur {
    std::string titre, precision;  // "À voir", "possédés, non prêtés, pas encore notés"
    std::vector<FilmDuMur> films;
    friend bool operator==(const RangeeDuMur&, const RangeeDuMur&) = default;
};

// "Derniers ajouts", "Prêtés", "À voir", without those that are empty. What cannot be read is left out, and nobody told.
// Of a very large catalogue only the first one. "À voir" are owned films that are at home: those without a rating, others each day, else the best rated.
[[nodiscard]] std::vector<RangeeDuMur> rangeesDuMur(const Contexte& c);
// The listing is of all films or of all that are owned, and nothing of it is chosen: they may stand above it.
[[nodiscard]] bool peutAvoirDesRangees(const browse::EtatListe& liste, const browse::PageDuGroupe& page);

// Of the tree's films it keeps ranges: what it says of them is asked of the tree that it was made from, and of no other.
struct Mur {
    struct Section {
        std::int32_t groupe = 0;  // the heading whose films they are; 0: the root's, or those of a line above
        int premiere = 0;         // of its tiles, which follow those of the section before
        int nombre = 0;
        bool entete = false;    // it has a title
        bool uneLigne = false;  // it is a line above
        friend bool operator==(const Section&, const Section&) = default;
    };
    std::vector<Section> sections;
    std::vector<RangeeDuMur> rangees;                   // the lines above: the first sections
    std::string nomDeLaListe;                           // above a flat list that has lines above it
    std::optional<std::vector<std::int32_t>> filtrees;  // the nodes of its films; nothing: all those of each section

    [[nodiscard]] int nombre() const;                      // of tiles
    [[nodiscard]] int desRangees() const;                  // how many of them are of the lines above
    [[nodiscard]] const FilmDuMur* film(int tuile) const;  // of those; nullptr for a film of the listing
    [[nodiscard]] std::int32_t noeud(const browse::Arbre& arbre, int tuile) const;  // 0 for one of a line above
    [[nodiscard]] std::string titre(const browse::Arbre& arbre, std::size_t section) const;  // "": no heading
    [[nodiscard]] std::string precision(std::size_t section) const;
    friend bool operator==(const Mur&, const Mur&) = default;
};

// `vues`: only these rows of the listing, nullptr for all of them.
[[nodiscard]] Mur murDAffiches(const browse::EtatListe& liste, const browse::PageDuGroupe& page, const LignesVues* vues,
                               const std::vector<RangeeDuMur>& rangees);

// How many of the page's films it shows: "12 films sur 840".
[[nodiscard]] std::string compteDuMur(const Mur& mur, const browse::PageDuGroupe& page);

// "Alien, de Ridley Scott, 1979", without what is empty.
[[nodiscard]] std::string nomDuFilm(std::string_view titre, std::string_view realisateur, std::string_view annee);

// The node of the next tile after `depuis` of those that begin with what was typed, in turn, its own last; letter case and
// accents make no difference. -1 without one. The lines above the listing are passed over.
[[nodiscard]] int tuileQuiCommencePar(const Mur& mur, const browse::Arbre& arbre, std::string_view frappe, int depuis);

}  // namespace ensemble
