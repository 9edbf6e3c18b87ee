#pragma once

#include <string>
#include <string_view>

namespace fichiers {

// The name of a file that is being written until it takes another one's place: never that of one that a killed program
// of another number has left.
[[nodiscard]] std::string nomProvisoire();
// Says to the other programs that this one, open for writing, is still in use: to its end or that of the process.
void marqueEnUsage(int descripteur);

// Removes from the folder what killed programs of ours left behind: regular files of such a name, the user's own, in use
// nowhere, and the journals of such bases as are gone. A program of another installation, or of another machine, may be writing into the folder meanwhile. Answers
// how many went.
int supprimeRestes(const std::string& dossier);

}  // namespace fichiers
