#pragma once

#include "platform/jet/FichierDePages.h"
#include "platform/jet/Octets.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Rows laid on pages, one page after the other, and what leads to those pages.
namespace jet::interne {

inline constexpr std::uint32_t kValeursLongues = 0x4C41564C;  // whose pages those of long values are ("LVAL")

// The rows of one owner. One page is held in memory.
class Rangement {
  public:
    Rangement(FichierDePages& fichier, std::uint32_t proprietaire) : m_fichier(fichier), m_proprietaire(proprietaire) {}

    // Throws std::length_error for a row that no page could take.
    Pointeur ajoute(std::string_view ligne);
    [[nodiscard]] bool aLaPlace(std::size_t octets) const;  // on the page under way
    void acheve();                                          // the page under way
    [[nodiscard]] const std::vector<std::uint32_t>& pages() const { return m_pages; }
    [[nodiscard]] std::uint32_t lignes() const { return m_lignes; }

  private:
    void commence();

    FichierDePages& m_fichier;
    std::uint32_t m_proprietaire;
    std::vector<std::uint32_t> m_pages;
    std::string m_page;  // empty: none
    std::size_t m_rangs = 0, m_debut = 0;
    std::uint32_t m_lignes = 0;
};

// The long values of one column. Short ones stand in their row, middling ones share pages, the others are chains.
class ValeursLongues {
  public:
    explicit ValeursLongues(FichierDePages& fichier) : m_fichier(fichier), m_petites(fichier, kValeursLongues) {}

    [[nodiscard]] std::string champ(std::string_view octets);  // what the row holds of the value
    void acheve();
    [[nodiscard]] std::vector<std::uint32_t> pages() const;        // ascending
    [[nodiscard]] std::vector<std::uint32_t> pagesLibres() const;  // with room on them

    [[nodiscard]] static std::size_t dansLaLigne(std::size_t octets);
    [[nodiscard]] static std::uint64_t ailleurs(std::size_t octets);

  private:
    Pointeur enchaine(std::string_view octets);

    FichierDePages& m_fichier;
    Rangement m_petites;
    std::vector<std::uint32_t> m_chaines;
};

[[nodiscard]] std::string enOctets(Pointeur pointeur);  // as rows and definitions hold it

// Lists pages, in ascending order: a row of `cartes`, and of its own pages when they lie far apart.
Pointeur ecritCarte(FichierDePages& fichier, Rangement& cartes, const std::vector<std::uint32_t>& pages);
// The row that lists the pages that the file does not have yet, to be written when all others have their number.
[[nodiscard]] std::string carteDesPagesLibres(FichierDePages& fichier);

}  // namespace jet::interne
