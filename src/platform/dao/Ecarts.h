#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dao {

// Rows of one kind: how many, and the first of them as "title - director".
struct LotDeLignes {
    long nombre = 0;
    std::vector<std::string> premieres;
};

// How the same table of two bases differs.
struct Ecarts {
    LotDeLignes seulementLa;  // in the first base only
    LotDeLignes seulementIci;
    LotDeLignes differentes;  // in both, with other values
};

// Rows are the same one where Jet's comparison holds both columns for equal; of several, those that come first go
// together. Values are compared as they are written, posters in the base by their size. Both bases are only read. Throws
// ErreurDao.
[[nodiscard]] Ecarts ecarts(const std::string& la, const std::string& ici, const std::string& table,
                            const std::string& titre, const std::string& realisateur, std::size_t premieres);

}  // namespace dao
