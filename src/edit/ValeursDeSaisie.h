#pragma once

#include "platform/dao/Database.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace edit {

struct Contexte;

// What the lists of the manual page offer, kept as long as the films are those that it was read from.
struct ValeursDeSaisie {
    static constexpr std::size_t kListes = 3;  // genre, origin, production

    std::array<std::optional<std::vector<std::string>>, kListes> listes;  // without a value: to be read
    dao::Database::Version films{};                                       // as they were then
};

// Fills the three lists; nothing that was typed in them stays. Throws db::RequeteEchouee after its message.
void remplitListesDeSaisie(const Contexte& c);

// Around the writing of one film from the entry controls: `avant` is their version before it. Only a list that lacks its
// very value is read again.
[[nodiscard]] dao::Database::Version versionDesFilms(const Contexte& c);
void unFilmEstEcrit(const Contexte& c, const dao::Database::Version& avant);

}  // namespace edit
