#pragma once

#include <string>

namespace db {

// What became of the posters that a conversion met.
struct RapportConversion {
    long exclus = 0;      // files too large for the base
    long crees = 0;       // posters now in files
    long inclus = 0;      // posters now in the base
    long gardes = 0;      // left in the base: another picture bears their file's name
    long illisibles = 0;  // files that stand there and cannot be read

    // A line for each count above 0; empty when there is none.
    [[nodiscard]] std::string texte() const;

    RapportConversion& operator+=(const RapportConversion& autre);
};

}  // namespace db
