#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dao::interne {

// Keys of rows, added in any number, then put in order: by their bytes, and as they were added where these are equal.
class Ordre {
  public:
    // A column of the key of the row being added. Null comes first; a number orders by its value.
    void ajouteTexte(std::string_view cleJet, bool decroissant);
    void ajouteNombre(double nombre, bool decroissant);
    void ajouteNul(bool decroissant);
    // Ends the row's key; rows of equal keys follow each other by these two numbers.
    void finit(long long premier, long long second);

    void change(std::uint32_t rang, long long premier) { m_suites[rang].first = premier; }

    // The rows by their rank of addition, in order; `sansDoublons` keeps the first of rows with equal keys.
    [[nodiscard]] std::vector<std::uint32_t> rangs(bool sansDoublons);

  private:
    struct Entree {
        std::uint64_t prefixe;  // the key's first eight bytes
        std::uint64_t debut;
        std::uint32_t taille;
        std::uint32_t rang;
    };
    [[nodiscard]] std::string_view cle(const Entree& entree) const {
        return std::string_view(m_cles).substr(entree.debut, entree.taille);
    }
    void inverseDepuis(std::size_t debut);

    std::string m_cles;
    std::size_t m_debut = 0;
    std::vector<Entree> m_entrees;
    std::vector<std::pair<long long, long long>> m_suites;
};

}  // namespace dao::interne
