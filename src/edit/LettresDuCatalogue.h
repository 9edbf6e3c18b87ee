#pragma once

#include "edit/Contexte.h"
#include "edit/FilmExamine.h"
#include "edit/LettresAbregees.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
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
        std::string texte;
        LettresAbregees lettres;
        std::uint32_t rang;  // of addition
    };
    struct Realisateur {
        std::string nom;
        LettresAbregees lettres;
        std::vector<Titre> titres;
    };
    // Hands each film that resembles, its director, title and their scores, until `recoit` answers false.
    template <typename Recoit>
    void chercheProches(const db::CleFilm& film, Recoit recoit) const;

    std::vector<Realisateur> m_realisateurs;
    std::uint32_t m_titres = 0;
    std::unordered_map<std::string, std::size_t> m_rangs;            // in m_realisateurs
    std::map<std::uint64_t, std::vector<std::size_t>> m_parLettres;  // likewise, by how many letters they have
};

}  // namespace edit
