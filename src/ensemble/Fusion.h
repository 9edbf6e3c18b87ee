#pragma once

#include "ensemble/Contexte.h"

#include <optional>
#include <string>
#include <vector>

namespace ensemble {

// One field of two films that are compared, and which of the two values the one film is to have in the end.
struct ChampCompare {
    const char* champ;    // the column
    std::string legende;  // "Réalisateur"
    std::string gauche, droite;
    bool prendDroite = false;
    bool ailleurs = false;  // the right one is an attached file that found room in another field: nothing is lost
    [[nodiscard]] bool differe() const { return gauche != droite; }
    [[nodiscard]] bool conflit() const;  // both say something, and not the same
    friend bool operator==(const ChampCompare&, const ChampCompare&) = default;
};

// Two films side by side, and what becomes of them when they are made one: the left one stays, completed by what only the
// right one says; the right one goes. The user may choose otherwise field by field (`prendDroite`), or turn them round
// (planDeFusion of the two in the other order).
struct PlanDeFusion {
    db::CleFilm gauche, droite;
    bool gauchePossede = false, droitePossede = false;
    std::vector<ChampCompare> film{};        // the poster, by what it is, included; title and director first
    std::vector<ChampCompare> possession{};  // of the holdings, where both are owned
    friend bool operator==(const PlanDeFusion&, const PlanDeFusion&) = default;

    [[nodiscard]] std::string texte() const;  // what will be done, in a few lines, for a question
};

// Nothing where one of the two is gone. Films of one name for the base are its first two rows of that name. Throws
// db::RequeteEchouee after its message, dao::ErreurDao.
[[nodiscard]] std::optional<PlanDeFusion> planDeFusion(const Contexte& c, const db::CleFilm& gauche,
                                                       const db::CleFilm& droite);

// Carries it out, all of it or nothing, and makes the listing again. False, and nothing done, where the films are not any
// more what the plan shows. Throws as planDeFusion does.
[[nodiscard]] bool fusionne(const Contexte& c, const PlanDeFusion& plan);

}  // namespace ensemble
