#pragma once

#include "ensemble/Contexte.h"

#include <string>
#include <vector>

// The health of a base: what its sheets lack, and what leads nowhere. Looking changes nothing; what can be mended at once
// is mended when the user asks for it, kind by kind.
namespace ensemble {

enum class Mal {
    SansAffiche,
    SansAnnee,
    SansRealisateur,
    SansResume,
    AfficheAbsente,   // the poster's file is not there
    AfficheSansFilm,  // a poster's file that no film names
    FichierAbsent,    // an attached file
    PossessionSansFilm,
    PossessionDouble,
    TitreACorriger,  // differs by what the correction of titles changes
};

struct LigneDeSante {
    db::CleFilm film;    // which the line leads to; the nearest thing to one where there is no sheet
    std::string detail;  // beside its title: a file, the corrected title…; may be empty
    bool aUneFiche = true;
    bool reparable = false;
    [[nodiscard]] std::string pourquoiSansFiche() const;  // why the line leads to no sheet
};

struct Constat {
    Mal mal;
    std::string titre;         // "Fiches sans affiche"
    std::string reparation{};  // what mending does, to name its button; empty: nothing can be done at once
    std::vector<LigneDeSante> lignes{};
    std::string reserve{};  // why it cannot be told, or not be mended now; may be empty
    bool complet = true;    // false: stopped, nothing is known
    [[nodiscard]] long reparables() const;
    [[nodiscard]] std::string texte() const;  // "Fiches sans affiche : 12"; "…, dont 3 réparables"; with the reserve
    [[nodiscard]] std::string texteReparation() const;  // "Créer les fiches (3)"; "" where nothing can be mended now
};

struct Examen {
    std::vector<Constat> constats;  // of every kind, in the order of Mal; empty ones too
    bool complet = true;            // false: stopped, what comes after is not known
    [[nodiscard]] std::string bilan() const;
};

// All kinds, with progress and stop. Throws db::RequeteEchouee after its message, dao::ErreurDao.
[[nodiscard]] Examen examine(const Contexte& c);
// One kind alone, as it is now.
[[nodiscard]] Constat examine(const Contexte& c, Mal mal);

// Mends what can be of a kind as it is now, in transactions, with progress and stop; then the listing is made again.
// Answers how many lines were. A failure was told.
long repare(const Contexte& c, Mal mal);

}  // namespace ensemble
