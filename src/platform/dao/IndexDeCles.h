#pragma once

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
    void commence(std::size_t lignes);  // empty, and ready for so many
    void oublie();

    void ajoute(std::uint64_t hachage, long long ligne) { m_lignes.emplace(hachage, ligne); }
    void retire(std::uint64_t hachage, long long ligne);
    [[nodiscard]] std::vector<long long> candidats(std::uint64_t hachage) const;  // in row id order

  private:
    std::unordered_multimap<std::uint64_t, long long> m_lignes;
    bool m_construit = false;
};

}  // namespace dao::interne
