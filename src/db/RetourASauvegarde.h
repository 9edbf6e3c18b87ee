#pragma once

#include "db/Sauvegardes.h"

#include <optional>
#include <string>

namespace db {

// Puts the open base back as the copy holds it: the copy is copied beside the base, read through and opened there, today's
// state is saved, then the file is replaced and opened as another base is. What prevents it is told, or shown as a notice
// where the user stopped it, and the base stays as it is. Poster files are no part of it. Throws
// systeme::FinDuProgramme where the base cannot be opened again.
[[nodiscard]] bool revientA(const Contexte& c, const Sauvegarde& copie);

// The base cannot be opened for what its file holds: it is no base, or is damaged. A file that is not there, that another
// program uses, that may not be written or that is Jet's is not that.
[[nodiscard]] bool estEndommagee(const std::string& base);
// Puts the copy in the place of such a base, which is not open. Its file is kept beside, with its journal, under a name
// that nothing bore ("Films (endommagée).mdb"); answers that name, or nothing when it was told why not.
[[nodiscard]] std::optional<std::string> remetEnPlace(const Contexte& c, const Sauvegarde& copie);

// How many posters the copy names whose file is not there now.
[[nodiscard]] long affichesSansFichier(const Contexte& c, const Sauvegarde& copie);
// How the copy differs from the open base, in lines to be read. Throws dao::ErreurDao.
[[nodiscard]] std::string comparaison(const Contexte& c, const Sauvegarde& copie);

}  // namespace db
