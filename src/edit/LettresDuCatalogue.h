#pragma once

#include "edit/Contexte.h"
#include "edit/FilmExamine.h"
#include "util/NomsDistincts.h"
#include "util/Similarite.h"

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
        std::uint32_t precedent = 0;    // in m_titres, of the same director; of the batch
    };
    // What rules nearly every title out. Those of a director stand side by side: what a film costs is how many places of
    // the memory are looked at for it.
    struct Range {
        std::uint64_t genres = 0;  // of its letters
        std::uint32_t total = 0;
        std::uint32_t titre = 0;  // in m_titres
    };
    struct Realisateur {
        std::uint32_t debut = 0, nombre = 0;  // in m_ranges
        std::uint32_t dernier = 0;            // of the batch, in m_titres
    };
    struct DeMemeTotal {
        std::vector<std::uint64_t> genres;  // of their letters
        std::vector<std::uint32_t> rangs;   // in m_realisateurs
    };
    struct Trouve {
        std::string cle;  // as the base orders it
        const Titre* titre = nullptr;
        FilmProche film;
    };

    std::uint32_t ajoute(long long ligne, std::string_view titre, std::string_view realisateur);  // its director
    [[nodiscard]] std::uint32_t rangDu(std::string_view realisateur);
    [[nodiscard]] std::string_view texte(const Titre& titre) const {
        return std::string_view(m_textes).substr(titre.debut, titre.taille);
    }
    void range();  // the titles that were read
    [[nodiscard]] std::vector<std::uint32_t> realisateursPossibles(const util::EmpreinteLettres& realisateur) const;
    [[nodiscard]] std::vector<std::uint32_t> titresPossibles(const util::EmpreinteLettres& titre,
                                                             const util::EmpreinteLettres& realisateur) const;
    // Hands each film that resembles, with its scores, until `recoit` answers false.
    template <typename Recoit>
    void chercheProches(const db::CleFilm& film, Recoit recoit) const;
    [[nodiscard]] std::vector<Trouve> trouves(const db::CleFilm& film) const;

    std::string m_textes;  // the titles, one after the other
    std::vector<Titre> m_titres;
    std::vector<Range> m_ranges;  // by director
    util::NomsDistincts m_noms;   // of the directors
    std::vector<Realisateur> m_realisateurs;
    std::map<std::uint32_t, DeMemeTotal> m_parLettres;  // by how many letters they have
};

}  // namespace edit
