#pragma once

#include <string>
#include <vector>

namespace acquire {

// What an import did, and the message that tells it.
struct RapportImport {
    long ajoutes = 0;
    std::vector<std::string> affichesManquantes;  // paths of posters missing, too large or unreadable
    std::vector<std::string> titresRefuses;       // already present, or refused for a resemblance
    std::vector<std::string> fichesIllisibles;    // files that could not be read

    [[nodiscard]] std::string texte() const;
};

}  // namespace acquire
