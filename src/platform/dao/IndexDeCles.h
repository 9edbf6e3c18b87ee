#pragma once

#include "platform/dao/Souffle.h"
#include "platform/dao/Tampon.h"

#include <compare>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dao::interne {

// A key's hash over its bytes. Keys of several columns are chained by passing the hash of the first as `depart`.
[[nodiscard]] std::uint64_t hache(std::string_view octets, std::uint64_t depart = 0);
// Of a row's two key columns, by their Jet keys.
[[nodiscard]] std::uint64_t hacheCle(std::string_view premiere, std::string_view seconde);

// From the texts of a table's key to the rows that may bear them, in memory.
// It answers candidates, equal by hash alone: the row itself is compared by whoever asks.
class IndexDeCles {
  public:
    [[nodiscard]] bool estConstruit() const { return m_construit; }
    // Takes the rows of a whole table: range for each of them, acheve.
    void range(std::uint64_t hachage, long long ligne) { m_lignes.push_back({hachage, ligne}); }
    void acheve(const Souffle& souffle);
    void oublie();
    void rends(Cadence& cadence);  // as oublie, with a breath in it: nobody looks for anything in it any more

    void ajoute(std::uint64_t hachage, long long ligne) { m_ajoutees.emplace(hachage, ligne); }
    void retire(std::uint64_t hachage, long long ligne);
    [[nodiscard]] std::vector<long long> candidats(std::uint64_t hachage) const;  // in row id order

  private:
    struct Place {
        std::uint64_t hachage;
        long long ligne;
        friend auto operator<=>(const Place&, const Place&) = default;
    };
    Tampon<Place> m_lignes;                                        // in order
    std::unordered_multimap<std::uint64_t, long long> m_ajoutees;  // since
    std::unordered_multimap<std::uint64_t, long long> m_retirees;  // of m_lignes
    bool m_construit = false;
};

}  // namespace dao::interne
