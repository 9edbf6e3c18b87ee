#pragma once

#include <string>

namespace db {

// What became of the posters that a conversion met.
struct RapportConversion {
    long exclus = 0;      // files too large for the base
    long crees = 0;       // posters now in files
    long inclus = 0;      // posters now in the base
    long illisibles = 0;  // files that stand there and cannot be read
    long restants = 0;    // those not met, the conversion having ended before

    // A line for each count above 0; empty when there is none.
    [[nodiscard]] std::string texte() const;
    [[nodiscard]] long rencontres() const { return exclus + crees + inclus + illisibles; }

    RapportConversion& operator+=(const RapportConversion& autre);
};

}  // namespace db
