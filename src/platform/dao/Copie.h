#pragma once

#include "platform/dao/Souffle.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dao::DBEngine {

// How far a copy is, in bytes; false stops it.
using AvanceDeCopie = std::function<bool(std::int64_t faits, std::int64_t total)>;
enum class IssueDeCopie { Faite, Arretee };

// What a base of ours holds at a glance.
struct Contenu {
    long long films = 0;
    long long possessions = 0;

    friend bool operator==(const Contenu&, const Contenu&) = default;
};

// Copies the base at `source`, as it stands between two transactions, into the file at `destination`, which exists, is
// empty, and is the caller's. Other programs may read the base meanwhile, none changes it. Answers Faite when the copy
// is whole, counted, on the disk, and one file alone; what lasts between two calls of `avance` goes to `attente`. Otherwise, and when it throws ErreurDao (disk full, source damaged,
// locked or no base of ours), what the destination holds is worth nothing.
[[nodiscard]] IssueDeCopie copieBase(const std::string& source, const std::string& destination,
                                     const AvanceDeCopie& avance = {}, const Attente& attente = {});

// The counts of a base that is only read, its file left as it is. Throws ErreurDao where it is none, or damaged there.
[[nodiscard]] Contenu contenuDe(const std::string& chemin);
// The first column of a statement of SQLite's own, as text, of a base that is only read. Throws ErreurDao.
[[nodiscard]] std::vector<std::string> textesDe(const std::string& chemin, const std::string& enonce);
// Reads a base through, index against table. Throws ErreurDao 3343 at the first damage.
void verifieEntierement(const std::string& chemin);

// Keeps every other program away from the base while `ensuite` runs: the place to put another file where it was. Throws
// ErreurDao when the base cannot be had alone, and what `ensuite` throws.
void seulAvecLaBase(const std::string& chemin, const std::function<void()>& ensuite);

}  // namespace dao::DBEngine
