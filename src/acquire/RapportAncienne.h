#pragma once

#include <string>

namespace acquire {

// What the import of a previous installation did, and the message that tells it.
struct RapportAncienne {
    long ajoutes = 0;
    long possedes = 0;        // films added with their holding
    long dejaPresents = 0;    // films that the base had, or that came twice
    long possessions = 0;     // holdings added to films that the base had
    long orphelines = 0;      // holdings added without a film, as they were
    long affiches = 0;        // posters given to films that the base had without them
    long nonTrouvees = 0;     // pictures that a film names and that cannot be read
    long tropGrandes = 0;     // pictures left out of the base
    bool interrompu = false;  // by the user, or by a failure
    std::string pertes{};     // what the old base had and ours has no place for, each line after a line break

    [[nodiscard]] std::string texte() const;
    [[nodiscard]] bool aChangeLaBase() const { return ajoutes + possessions + orphelines + affiches > 0; }
};

}  // namespace acquire
