#pragma once

#include "ensemble/Contexte.h"

#include <string>
#include <vector>

// What a correction of titles or the renaming of a group would change, before the command is asked for it. Nothing is
// changed by looking.
namespace ensemble {

struct Changement {
    db::CleFilm film;
    std::string avant, apres;
};

// Films that the base would hold for one and the same.
struct Collision {
    std::string titre;
    std::vector<db::CleFilm> films;
};

struct Apercu {
    std::vector<Changement> changements{};
    std::vector<Collision> collisions{};
    std::string texte{};  // "12 titres changeront.", with what is to be known beside
    bool complet = true;  // false: stopped, there may be more
};

// The correction of all titles, with progress and stop; by title. Throws db::RequeteEchouee after its message,
// dao::ErreurDao.
[[nodiscard]] Apercu apercuDesTitres(const Contexte& c);

// The selected heading renamed: `champ` and `personnel` as edit::ModifieGroupe takes them. A value that is longer than the
// column is shown as it would be cut. Nothing changes without a heading, or for an empty value.
[[nodiscard]] Apercu apercuDuGroupe(const Contexte& c, const std::string& champ, const std::string& valeur,
                                    bool personnel);

}  // namespace ensemble
