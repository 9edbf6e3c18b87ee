#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// The changes that are made to a base, recorded so that they can be taken back and made again, by SQLite's session
// extension. A table takes part when its primary key is its row id (`id INTEGER PRIMARY KEY`).
namespace dao {

// Where the bytes of what was recorded are kept, by who keeps them. Nothing here throws.
class Depot {
  public:
    virtual ~Depot() = default;
    // Appends them. False where there is no room: what is being recorded is then given up.
    [[nodiscard]] virtual bool ajoute(std::string_view octets) = 0;
    [[nodiscard]] virtual std::int64_t taille() const = 0;
    // Up to so many bytes from there: fewer only at the end, none when they cannot be read.
    [[nodiscard]] virtual std::size_t lit(std::int64_t place, char* tampon, std::size_t octets) const = 0;
};

// Changes that belong to one transaction, as one changeset.
struct Morceau {
    std::int64_t debut = 0;  // in the depot
    std::int64_t octets = 0;
    bool modifie = false;  // rows were modified, and not only added or deleted
    // Which films the modified rows were, and which they are: of such a row the changeset holds what was changed alone,
    // and another program may have given its id to another film. Those whose title was changed it tells by itself.
    std::uint64_t avant = 0;
    std::uint64_t apres = 0;
};

// What Database::enregistre writes while changes are made.
struct Enregistrement {
    Depot& depot;
    std::vector<std::string> tables;  // those that are followed
    std::vector<Morceau> morceaux{};  // of what was confirmed, in the order of the changes
    std::string manque{};             // why changes are missing, to be told; empty: they are all there
};

enum class Sens { Defaire, Refaire };
enum class Application {
    Faite,
    Changees,  // rows are no longer what they were: nothing was done
    Arretee,   // by `Avance`: nothing was done
};
// How far it is, in bytes of what was recorded; false stops it.
using Avance = std::function<bool(std::int64_t faits, std::int64_t total)>;

}  // namespace dao
