#pragma once

#include "platform/dao/AccesValeur.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dao::interne {

// Rows with a few of their values, packed: one buffer of characters, four bytes a value, eight a row id.
class Magasin {
  public:
    enum class Genre : std::uint32_t {
        Nul,
        Texte,
        Autre,
        Absent
    };  // Autre: a number or bytes, as text; Absent: too long to be kept
    struct Valeur {
        Genre genre;
        std::string_view texte;  // holds until a row is added
    };

    explicit Magasin(std::size_t colonnes) : m_colonnes(colonnes) {}

    std::uint32_t ajoute(long long id);
    void ajouteValeur(const ValeurVue& valeur);  // of the last row, column after column
    void change(std::uint32_t ligne, long long id) { m_ids[ligne] = id; }
    void serre();  // no row follows

    [[nodiscard]] std::size_t taille() const { return m_ids.size(); }
    [[nodiscard]] const long long& id(std::uint32_t ligne) const { return m_ids[ligne]; }
    [[nodiscard]] Valeur valeur(std::uint32_t ligne, std::size_t colonne) const;

  private:
    void pose(Genre genre, std::string_view texte);

    std::size_t m_colonnes;
    std::vector<long long> m_ids;
    std::vector<std::uint32_t> m_fins;  // where each value ends in the buffer, its kind in the two high bits
    std::string m_caracteres;
};

}  // namespace dao::interne
