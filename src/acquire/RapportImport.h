#pragma once

#include "platform/dialogues/Dialogues.h"

#include <string>
#include <vector>

namespace acquire {

// What an import did, and the message that tells it.
struct RapportImport {
    long ajoutes = 0;
    long affichesAjoutees = 0;                    // given to films that were there already without one
    std::vector<std::string> affichesManquantes;  // paths of posters missing, too large or unreadable
    std::vector<std::string> titresRefuses;       // already present, or refused for a resemblance
    std::vector<std::string> fichesIllisibles;    // paths of files that are no sheet that can be read
    std::vector<std::string> fichesRestantes;     // paths of those that an import cut short did not come to
    std::vector<std::string> fichesCompletees{};  // names of those whose film was given what it lacked
    std::vector<std::string> rangement{};         // where these two went, in lines of their own; none where they stay

    [[nodiscard]] dialogues::Rapport texte() const;
};

}  // namespace acquire
