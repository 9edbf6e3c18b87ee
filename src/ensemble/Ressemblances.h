#pragma once

#include "ensemble/Contexte.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ensemble {

// Two films whose titles and directors are each more than edit::kSeuilRessemblance per cent alike, by the measure that an
// import asks.
struct Paire {
    db::CleFilm gauche, droite;      // in the order of their titles
    int titre = 0, realisateur = 0;  // per cent
    friend bool operator==(const Paire&, const Paire&) = default;
};

struct Ressemblances {
    std::vector<Paire> paires;  // the closest first
    long trouvees = 0;          // those that were too many to keep included
    bool complet = true;        // false: stopped before the end
};

inline constexpr std::size_t kPairesAuPlus = 10000;

// All pairs of the catalogue that resemble each other, and none else; of more than `auPlus` the closest are kept. Shows
// its progress, can be stopped, changes nothing. Throws db::RequeteEchouee after its message, dao::ErreurDao.
[[nodiscard]] Ressemblances ressemblances(const Contexte& c, std::size_t auPlus = kPairesAuPlus);

// "Ressemblance titre : 92 %" and "Ressemblance réali : 100 %".
[[nodiscard]] std::string texteRessemblanceTitre(const Paire& paire);
[[nodiscard]] std::string texteRessemblanceReali(const Paire& paire);
// "3 paires de films se ressemblent." and its kind, with what is not shown and whether it was stopped.
[[nodiscard]] std::string bilan(const Ressemblances& ressemblances);

}  // namespace ensemble
