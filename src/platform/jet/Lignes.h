#pragma once

#include "platform/jet/Definition.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// The rows of a table, as bytes, and their fields within them.
namespace jet::interne {

// What may still be reached through pointers. In a sound file one pointer leads to each place: a second one is found out,
// and pointers that run in circles cost no more than the file's size, however many of them lead nowhere.
class Reserve {
  public:
    explicit Reserve(const Pages& pages) : m_reste(2 * pages.taille()), m_atteints(std::size_t{pages.nombre()} << 8) {}
    void prend(std::uint64_t octets);  // throws Dommage when there is no more
    void marque(Pointeur pointeur);    // of a slot that exists; throws Dommage when it is marked already
    void libere(Pointeur pointeur) { m_atteints[place(pointeur)] = false; }

  private:
    static std::size_t place(Pointeur pointeur) { return std::size_t{pointeur.page} << 8 | pointeur.rang; }

    std::uint64_t m_reste;
    std::vector<bool> m_atteints;  // one for each pointer that there can be
};

// Something is wrong with a whole page. The next call goes on after it.
class DommagePage : public Dommage {
  public:
    using Dommage::Dommage;
};

// A slot of a data page, and what its place says of it.
struct Tranche {
    Octets octets;
    bool supprimee = false;
    bool renvoi = false;  // the row stands elsewhere: this is where
};
[[nodiscard]] Tranche tranche(const Format& format, Octets page, std::size_t rang);
// The row that a pointer leads to, on a page whose owner is as given.
[[nodiscard]] Tranche trancheA(Pages& pages, Pointeur pointeur, std::uint32_t proprietaire);

// The rows in the order of the pages, then of their slots. A call that throws has passed over what it could not read.
class Lignes {
  public:
    // `acharne`: a page that is none of the table's is damage too, instead of being passed over.
    Lignes(Pages& pages, const Definition& definition, Reserve& reserve, bool acharne)
        : m_pages(pages), m_definition(definition), m_reserve(reserve), m_acharne(acharne) {}

    void suitLaCarte();  // the pages are those of the table's map; throws Dommage
    // The pages are those of the file that say they are the table's, and were not among the map's.
    void chercheAilleurs();

    // The next row, good until the next call; nothing after the last.
    [[nodiscard]] std::optional<Octets> suivante();
    // Pages that the table's map lists and that are none of its data pages.
    [[nodiscard]] std::uint32_t pagesEcartees() const { return m_ecartees; }

  private:
    bool changeDePage();
    bool entreDans(std::uint32_t numero);
    Octets suitLesRenvois(Octets renvoi);

    Pages& m_pages;
    const Definition& m_definition;
    Reserve& m_reserve;
    bool m_acharne;
    bool m_ailleurs = false;
    std::vector<std::uint32_t> m_liste;
    std::size_t m_prochainePage = 0;
    std::vector<std::uint8_t> m_page;  // copies: other pages are read while a row is in use
    std::vector<std::uint8_t> m_deplacee;
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
