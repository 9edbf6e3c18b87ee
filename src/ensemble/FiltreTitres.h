#pragma once

#include "ensemble/Contexte.h"
#include "ensemble/LignesVues.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ensemble {

// The filter above the title tree: of the listing that the tree shows, the films in which every word that is typed stands,
// in any order, in title, director, year, genre or actors. Letter case, accents, ligatures and apostrophes make no
// difference.
//
// Its index is built once for each filling of the tree, from the listing itself, and holds a few hundred bytes a film; a
// listing whose texts exceed kOctetsMax is searched by title alone from there on. The listing's current record stays.
class FiltreTitres {
  public:
    static constexpr std::size_t kOctetsMax = std::size_t{128} << 20, kOctetsParChamp = 4096;
    // A listing of more films is read once the filter is about to be used, and not before.
    static constexpr long kGrandeListe = 200000;
    static constexpr long kLuesDUnCoup = 10000;  // films that `filtre` reads without the window feeling it

    // Reads on, for about as long as said. True once all of the listing is read; `filtre` else reads the rest at once.
    // Throws dao::ErreurDao.
    bool prepare(const Contexte& c, std::chrono::milliseconds duree);

    // Whether `filtre` would first read more than kLuesDUnCoup.
    [[nodiscard]] bool tarderait(const Contexte& c) const;

    // The films in which the text's words stand; all of them for a text without one. Throws dao::ErreurDao.
    const LignesVues& filtre(const Contexte& c, std::string_view saisie);
    // Only the films of these rows of the listing shown now are looked at, until `leveLaLimite`: those of a bar. They are
    // found again in a listing filled later, by title and director; in another base there is no limit.
    void limite(const Contexte& c, const std::vector<std::uint32_t>& lignes);
    void leveLaLimite();
    void perime() { m_perimees = true; }  // until the next `filtre`
    [[nodiscard]] bool estLimite() const { return m_limites.has_value(); }
    [[nodiscard]] bool estPerime() const { return m_perimees; }  // what `filtre` answered is no longer so

    // Of the last `filtre`.
    [[nodiscard]] bool actif() const { return !m_mots.empty() || estLimite(); }  // something may be hidden
    [[nodiscard]] const LignesVues& vues() const { return m_vues; }
    // Whether a film's node is to be seen; true for all those of a tree filled since.
    [[nodiscard]] bool estVu(const browse::Arbre& arbre, int noeud) const;
    [[nodiscard]] int version() const { return m_version; }  // rises with each `filtre`
    // "12 titres sur 840", or that there is none; empty while nothing is filtered.
    [[nodiscard]] std::string texteDuCompte() const;
    // What stays of the tree: its nodes in their order, a heading before the first of its films.
    [[nodiscard]] std::vector<std::int32_t> noeudsVus(const browse::Arbre& arbre) const;
    // The letters to mark in a title, as bytes of it; in their order, none over another.
    struct Plage {
        std::size_t debut, fin;
        friend bool operator==(const Plage&, const Plage&) = default;
    };
    [[nodiscard]] std::vector<Plage> marques(std::string_view titre) const;

    [[nodiscard]] std::size_t octets() const;  // of memory

  private:
    // Which letters and pairs of letters stand in a text: nearly every film that a word is not in lacks one of its pairs.
    struct Signes {
        std::uint64_t lettres = 0;
        std::array<std::uint64_t, 8> paires{};
    };
    static void ajouteSignes(std::string_view texte, Signes& signes);
    [[nodiscard]] static std::vector<std::string> motsDe(std::string_view saisie);
    [[nodiscard]] static bool prolonge(const std::vector<std::string>& mots, const std::vector<std::string>& autres);

    void suisLaListe(const Contexte& c);
    void lit(const Contexte& c, std::size_t lignes);
    void ajouteLigne(dao::Recordset& liste);
    void suisLaLimite(const dao::Recordset& liste);
    void ajouteChamp(std::string_view valeur, std::size_t auPlus);
    [[nodiscard]] bool convient(std::size_t rang, const Signes& voulus) const;
    [[nodiscard]] std::size_t lues() const { return m_fins.size(); }

    int m_remplissage = -1;  // of the tree, that the index is about
    std::size_t m_lignes = 0;
    std::string m_textes;  // one film after the other
    std::vector<std::uint32_t> m_fins;
    std::vector<Signes> m_signes;
    std::array<dao::Colonne, 5> m_colonnes;

    std::vector<std::string> m_mots;
    LignesVues m_vues;
    std::optional<std::unordered_set<std::string>> m_limites;  // title and director of the films looked at
    std::optional<LignesVues> m_limite;                        // their rows of this listing
    bool m_limiteALire = false;                                // as far as it is read
    std::string m_base;                                        // that they are of
    bool m_perimees = true;  // m_vues are of before: of another listing, or of another limit
    int m_version = 0;
};

}  // namespace ensemble
