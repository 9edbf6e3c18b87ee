#pragma once

#include "edit/Contexte.h"
#include "edit/FilmExamine.h"
#include "util/NomsDistincts.h"
#include "util/Similarite.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace edit {

// The letters of every film of the catalogue, counted once for a batch: tells without reading the catalogue again what
// resembles a new film, which nearly always is nothing.
class LettresDuCatalogue {
  public:
    // Counts the films of the base; those the batch adds afterwards come by `ajoute`, as they are stored.
    [[nodiscard]] static LettresDuCatalogue de(const Contexte& c);

    void ajoute(const db::CleFilm& film);
    [[nodiscard]] bool aUnProche(const db::CleFilm& film) const;
    // All that resemble it, the closest first.
    [[nodiscard]] std::vector<FilmProche> proches(const db::CleFilm& film) const;
    // All that resemble it, as a listing by title would meet them.
    [[nodiscard]] std::vector<db::CleFilm> prochesParTitre(const db::CleFilm& film) const;

  private:
    struct Titre {
        long long ligne = 0;    // in the base; those of the batch come after all of them
        std::size_t debut = 0;  // in m_textes
        std::uint32_t taille = 0;
        std::uint32_t realisateur = 0;  // in m_realisateurs
    };
    // Some titles of one director, side by side with what rules nearly all of them out: what a film costs is how many places
    // of the memory are looked at for it.
    struct Titres {
        static constexpr std::size_t kAuPlus = 6;
        std::array<util::EmpreinteLettres, kAuPlus> empreintes{};
        std::array<std::uint32_t, kAuPlus> rangs{};  // in m_titres
        std::uint32_t nombre = 0;
        std::uint32_t precedents = 0;  // in m_parRealisateur, of the same director
    };
    struct DeMemeTotal {
        std::vector<std::uint64_t> genres;  // of their letters
        std::vector<std::uint32_t> rangs;   // in m_derniers
    };
    struct Trouve {
        std::string cle;  // as the base orders it
        const Titre* titre = nullptr;
        FilmProche film;
    };

    void ajoute(long long ligne, std::string_view titre, std::string_view realisateur);
    [[nodiscard]] std::uint32_t rangDu(std::string_view realisateur);
    void ajoute(std::uint32_t realisateur, std::uint32_t titre, const util::EmpreinteLettres& lettres);
    [[nodiscard]] std::string_view texte(const Titre& titre) const {
        return std::string_view(m_textes).substr(titre.debut, titre.taille);
    }
    [[nodiscard]] std::vector<std::uint32_t> titresPossibles(const util::EmpreinteLettres& titre,
                                                             const util::EmpreinteLettres& realisateur) const;
    // Hands each film that resembles, with its scores, until `recoit` answers false.
    template <typename Recoit>
    void chercheProches(const db::CleFilm& film, Recoit recoit) const;
    [[nodiscard]] std::vector<Trouve> trouves(const db::CleFilm& film) const;

    std::string m_textes;  // the titles, one after the other
    std::vector<Titre> m_titres;
    std::vector<Titres> m_parRealisateur;
    std::vector<std::uint32_t> m_derniers;  // of each director, in m_parRealisateur
    util::NomsDistincts m_realisateurs;
    std::map<std::uint32_t, DeMemeTotal> m_parLettres;  // directors, by their letters
};

}  // namespace edit
