#pragma once

#include "db/Contexte.h"
#include "db/NomsSauvegardes.h"
#include "platform/dao/Copie.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The safety copies of a base: whole bases of their own, in "Sauvegardes" beside its file. Poster files are no part of
// them. The folder is a real one, made private; anything else under its name is left alone, and no copy is taken.
namespace db {

struct Sauvegarde {
    std::string chemin;
    std::string base;  // the file that it is a copy of
    NomSauvegarde nom;
    std::int64_t octets = 0;
    // Of the copy; nothing where it cannot be read.
    [[nodiscard]] std::optional<dao::DBEngine::Contenu> contenu() const;
};

// How many copies a base keeps, and how often a large one is copied.
struct ReglesDesSauvegardes {
    std::size_t gardees = 10;
    std::int64_t grosseBase = 100 << 20;  // bytes; from there on one copy for each `intervalle`
    std::time_t intervalle = 3600;        // seconds
};

// The file itself that a base's path leads to, and the copies that it has, the last one first. A folder that is none, or
// cannot be read, has none.
[[nodiscard]] std::string fichierDeLaBase(const std::string& base);
// That of the open base, with nothing half written in it: what another program left so, our own reading undoes. Throws
// ErreurDao.
[[nodiscard]] std::string fichierAJour(const Contexte& c);
[[nodiscard]] std::string dossierDesSauvegardes(const std::string& base);
[[nodiscard]] std::vector<Sauvegarde> sauvegardesDe(const std::string& base);
// The last one that can be read.
[[nodiscard]] std::optional<Sauvegarde> derniereSauvegarde(const std::string& base);

enum class IssueSauvegarde {
    Faite,
    Superflue,  // a large base that has a copy of this hour
    Arretee,    // by the user
    Impossible
};
struct ResultatSauvegarde {
    IssueSauvegarde issue;
    std::string raison{};  // of Impossible, for the middle of a sentence
};

// Copies the open base. Its name is given to a whole copy that is on the disk; then those that are too many go, the ones
// that bear the lowest numbers, `aGarder` never. Work of more than a moment shows its progress and can be stopped.
[[nodiscard]] ResultatSauvegarde sauvegarde(const Contexte& c, Avant avant, const ReglesDesSauvegardes& regles = {},
                                            const std::string& aGarder = {});

// The same, before a command changes many rows or what has no way back: the user has agreed, nothing has changed yet.
// Where no copy can be taken a remark in the notice line says why. `octets`: about how much of rows and posters the command
// changes; where that is too much to be taken back, it says so now and is not recorded. False when the user stopped it:
// the command is not to begin.
[[nodiscard]] bool sauvegardeAvant(const Contexte& c, Avant avant, std::int64_t octets = 0);
inline constexpr std::int64_t kOctetsParLigne = 512;  // of a change that touches no poster

// "21/11/2026 à 14:05".
[[nodiscard]] std::string dateDe(const Sauvegarde& sauvegarde);

}  // namespace db
