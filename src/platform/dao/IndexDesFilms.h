#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace dao::interne {

// A key's hash over its bytes. Keys of several columns are chained by passing the hash of the first as `depart`.
[[nodiscard]] std::uint64_t hache(std::string_view octets, std::uint64_t depart = 0);
// Of a row's title and director, by their Jet keys.
[[nodiscard]] std::uint64_t hacheFilm(std::string_view titre, std::string_view realisateur);

// From a film's title and director to the rows that may bear them, in memory: 16 bytes a place, half of them used.
// It answers candidates, equal by hash alone: the row itself is compared by whoever asks.
class IndexDesFilms {
  public:
    [[nodiscard]] bool estConstruit() const { return m_construit; }
    void commence(std::size_t lignes);  // empty, and ready for so many
    void oublie();

    void ajoute(std::uint64_t hachage, long long ligne);
    void retire(std::uint64_t hachage, long long ligne);
    [[nodiscard]] std::vector<long long> candidats(std::uint64_t hachage) const;  // in row id order

  private:
    struct Place {
        std::uint64_t hachage = 0;  // 0: free, 1: was used
        long long ligne = 0;
    };
    void agrandit();
    void pose(std::uint64_t hachage, long long ligne);

    std::vector<Place> m_places;
    std::size_t m_occupees = 0;  // places that are not free
    bool m_construit = false;
};

}  // namespace dao::interne
