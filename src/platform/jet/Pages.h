#pragma once

#include "platform/jet/Octets.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// For this room only: the file as numbered pages, decoded. Nothing but opening, page reading and the places of the two
// formats' fields is asked of libmdb, which trusts what it finds on a page; what stands there is judged in this room.
namespace jet::interne {

// Where a place of the format stands, in bytes; it differs between Jet 3 and Jet 4.
struct Format {
    bool jet4 = false;
    std::size_t taillePage = 0;
    std::size_t nombreDeLignes = 0;  // on a data page; the places of its rows follow
    struct {
        std::size_t lignes, variables, colonnes, index, carte, debutColonnes, tailleIndex, tailleColonne;
    } table{};
    struct {
        std::size_t drapeaux, taille, numero, variable, fixe, echelle;
    } colonne{};
};

class Pages {
  public:
    // Throws ErreurJet; MotDePasseRefuse when the base has another password than the one given.
    explicit Pages(const std::string& chemin, std::string_view motDePasseDonne = {});
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;
    ~Pages();

    [[nodiscard]] const Format& format() const { return m_format; }
    [[nodiscard]] std::uint32_t nombre() const { return m_nombre; }
    [[nodiscard]] std::uint64_t taille() const { return std::uint64_t{m_nombre} * m_format.taillePage; }
    [[nodiscard]] std::uint64_t lues() const { return m_lues; }

    // A whole page, good until the next call; throws Dommage when the file does not have it.
    [[nodiscard]] Octets lit(std::uint32_t numero);

  private:
    struct Poignee;
    std::unique_ptr<Poignee> m_poignee;
    Format m_format;
    std::uint32_t m_nombre = 0;
    std::uint32_t m_courante = 0;  // the page in hand; 0 for none
    std::uint64_t m_lues = 0;
};

}  // namespace jet::interne
