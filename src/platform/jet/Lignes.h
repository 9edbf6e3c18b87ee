#pragma once

#include "platform/jet/Definition.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// The rows of a table, as bytes, and their fields within them.
namespace jet::interne {

// How many bytes may still be reached through pointers from row to row. Each byte of a sound file is reached once, so a
// file whose pointers run in circles, or all lead to one place, is found out before it costs more than its size.
class Reserve {
  public:
    explicit Reserve(std::uint64_t octets) : m_reste(octets) {}
    void prend(std::uint64_t octets);  // throws Dommage when there is no more

  private:
    std::uint64_t m_reste;
};

// A slot of a data page, and what its place says of it.
struct Tranche {
    Octets octets;
    bool supprimee = false;
    bool renvoi = false;  // the row stands elsewhere: this is where
};
[[nodiscard]] Tranche tranche(const Format& format, Octets page, std::size_t rang);
// The row that a pointer (page, then rank in the lowest byte) leads to, on a page whose owner is as given.
[[nodiscard]] Tranche trancheA(Pages& pages, std::uint32_t pointeur, std::uint32_t proprietaire);

// The rows in the order of the pages, then of their slots.
class Lignes {
  public:
    Lignes(Pages& pages, const Definition& definition, Reserve& reserve);

    // The next row, good until the next call; nothing after the last.
    [[nodiscard]] std::optional<Octets> suivante();
    // Pages that the table's map lists and that are none of its data pages.
    [[nodiscard]] std::uint32_t pagesEcartees() const { return m_ecartees; }

  private:
    bool changeDePage();
    Octets suitLesRenvois(Octets renvoi);

    Pages& m_pages;
    const Definition& m_definition;
    Reserve& m_reserve;
    std::vector<std::uint32_t> m_liste;
    std::size_t m_prochainePage = 0;
    std::vector<std::uint8_t> m_page;  // copies: other pages are read while a row is in use
    std::vector<std::uint8_t> m_ailleurs;
    std::size_t m_rang = 0, m_nombre = 0;
    std::uint32_t m_ecartees = 0;
};

// A row cut into its fields.
class Decoupe {
  public:
    Decoupe(const Format& format, const Definition& definition, Octets ligne);

    [[nodiscard]] bool bit(const Colonne& colonne) const;  // the value of a boolean; false for Null elsewhere
    // The field's bytes; nothing for Null, also in rows older than the field.
    [[nodiscard]] std::optional<Octets> champ(const Colonne& colonne) const;

  private:
    void placeLesVariables(bool jet4, std::size_t fin);

    Octets m_ligne;
    Octets m_masque;
    std::size_t m_colonnes = 0, m_debutFixes = 0, m_variables = 0;
    std::array<std::uint16_t, 258> m_places{};  // of the variable fields, and of their end
};

}  // namespace jet::interne
