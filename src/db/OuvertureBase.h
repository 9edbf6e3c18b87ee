#pragma once

#include "db/Contexte.h"

#include <string>

namespace db {

inline constexpr const char* kBaseDansTmp =
    "Le dossier Tmp d'Ambrelis est vidé à chaque fin du programme : une base ne peut pas s'y trouver.";

// Makes sure that the base's file exists (assureLeFichier) and opens it with its three recordsets. Any failure shows its
// message and throws systeme::FinDuProgramme; no file is harmed by it.
void ouvreLaBase(const Contexte& c);
// The same for the base that was open until now: no other file takes its place.
void reprendLaBase(const Contexte& c);
// Opens what c.chemins.base names in place of the open base. False, nothing changed and nothing shown, when it is none.
[[nodiscard]] bool rouvreLaBase(const Contexte& c);
// May change c.chemins.base to the program folder's own "films.mdb", c.chemins.baseAbsente then naming the one that is
// not there, and make that file from the template. Answers whether it was made.
bool assureLeFichier(const Contexte& c);
// Whether that existing file opens as a base. Shows the message of the failed opening when it does not; the open base
// and the file stay as they are. c.base.raison then tells more than the message: "elle est utilisée par un autre
// programme"; it may be empty.
[[nodiscard]] bool sOuvre(const Contexte& c, const std::string& chemin);

}  // namespace db
