#pragma once

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Souffle.h"
#include "platform/dao/Tampon.h"
#include "util/NomsDistincts.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace dao::interne {

// Rows by the first column that orders them. Its values, which are few as a rule (genres, years), are numbered as they
// come, by their letters: a Jet key is worked out once for each value, and none is kept for a row.
class Groupes {
  public:
    void ajouteTexte(std::string_view texte) { m_numeros.push_back(numero(texte)); }
    void ajouteNombre(double nombre);
    void ajouteNul() { m_numeros.push_back(kNul); }

    // For each row, in the order in which they were added: its place, group after group as Jet orders the values, Null
    // first; those of one group stay as they were. Where each group ends stands in `fins`. What was added is forgotten.
    [[nodiscard]] std::vector<std::uint32_t> places(std::vector<std::uint32_t>& fins, const Souffle& souffle = {});

  private:
    static constexpr std::uint32_t kNul = 0;
    [[nodiscard]] std::uint32_t numero(std::string_view texte);
    [[nodiscard]] std::vector<std::uint32_t> ordreDesGroupes(std::uint32_t& nombre, const Souffle& souffle);

    util::NomsDistincts m_connus;                // numbered from 0, a row's number being one more
    std::array<std::uint32_t, 256> m_recents{};  // numbers met lately; kNul: none
    Tampon<std::uint32_t> m_numeros;             // of each row
    bool m_clesPretes = false;                   // numbers: their keys are known
};

}  // namespace dao::interne
