#pragma once

#include "acquire/Contexte.h"
#include "edit/FilmExamine.h"
#include "voisins/FilmVoisin.h"

#include <string>
#include <vector>

namespace voisins {

// What the base has of each film of a collection, told before anything is written, by the judge that the import asks. The
// film itself is the collection's.
struct Jugement : edit::FilmExamine {
    bool aAjouter = true;  // as it is proposed, then as the user wants it
};

struct Examen {
    Collection collection;
    std::vector<Jugement> jugements{};  // of its films, in their order
    bool possedes = true;               // films of which nothing is said are the user's own
    bool complete = true;               // films that are there are given what they lack: fields, holding, poster

    [[nodiscard]] long nombre(edit::SortDuFilm sort) const;
    [[nodiscard]] long aAjouter() const;
    [[nodiscard]] bool aDeQuoiFaire() const {
        return aAjouter() > 0 || (complete && nombre(edit::SortDuFilm::DejaLa) > 0);
    }
    // "1 200 films dans cette collection de Tellico : …"
    [[nodiscard]] std::string texte() const;
};

// Reads the base, and changes nothing. Films that resemble one of the base are not proposed; those of one collection may
// resemble each other, as those of a series do. Throws db::RequeteEchouee after its
// message, dao::ErreurDao, LectureArretee.
[[nodiscard]] Examen examine(const acquire::Contexte& c, Collection collection);

}  // namespace voisins
