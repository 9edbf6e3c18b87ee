#pragma once

#include "acquire/Contexte.h"
#include "voisins/FilmVoisin.h"

#include <string>
#include <vector>

namespace voisins {

// What the base has of each film of a collection, told before anything is written: by the functions that the import asks.
enum class Sort {
    Nouveau,
    Ressemblant,  // to a film of the base
    DejaLa        // by its title and director, as the base compares them
};

struct Jugement {
    Sort sort = Sort::Nouveau;
    std::string proche{};  // Ressemblant: the film that it resembles
    bool aAjouter = true;  // as it is proposed, then as the user wants it
};

struct Examen {
    Collection collection;
    std::vector<Jugement> jugements{};  // of its films, in their order
    bool possedes = true;               // films of which nothing is said are the user's own
    bool complete = true;               // films that are there are given the holding and the poster that they lack

    [[nodiscard]] long nombre(Sort sort) const;
    [[nodiscard]] long aAjouter() const;
    [[nodiscard]] bool aDeQuoiFaire() const { return aAjouter() > 0 || (complete && nombre(Sort::DejaLa) > 0); }
    // "1 200 films dans cette collection de Tellico : …"
    [[nodiscard]] std::string texte() const;
};

[[nodiscard]] std::string texteDuSort(const Jugement& jugement);

// Reads the base, and changes nothing. Films that resemble another are not proposed. Throws db::RequeteEchouee after its
// message, dao::ErreurDao, LectureArretee.
[[nodiscard]] Examen examine(const acquire::Contexte& c, Collection collection);

}  // namespace voisins
