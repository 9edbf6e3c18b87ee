#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace browse {

// The title tree as a plain list of nodes in creation order, their indexes from 1. Two levels: headings and films; a film
// may stand at the root. It keeps its own texts: no view of it points into a recordset.
//
// Films that follow one another in the listing and under one heading are one run: four bytes a film beside its title. Read
// by one thread.
class Arbre {
    struct Suite {                // one heading, or films of one heading whose positions follow one another
        std::int32_t noeud = 0;   // its first node; those up to the next run's are its own, after `retire` maybe none
        std::int32_t groupe = 0;  // the heading's number, or that of the films' heading; 0: the root
        std::int32_t rang = 0;    // of the first node among its siblings
        std::uint32_t position = 0;  // of the first film; 0: a heading
    };

  public:
    // Nodes under a heading, or at the root, in their order. Holds until the tree changes.
    class Enfants {
      public:
        class Iterateur {
          public:
            using iterator_category = std::input_iterator_tag;
            using value_type = std::int32_t;
            using difference_type = std::ptrdiff_t;
            using pointer = const std::int32_t*;
            using reference = std::int32_t;

            Iterateur() = default;
            Iterateur(const Arbre& arbre, const std::int32_t* suite, std::size_t rang, std::size_t taille);
            std::int32_t operator*() const { return m_noeud; }
            Iterateur& operator++();
            void operator++(int) { ++*this; }
            friend bool operator==(const Iterateur& a, const Iterateur& b) { return a.m_rang == b.m_rang; }

          private:
            void entre();

            const Arbre* m_arbre = nullptr;
            const std::int32_t* m_suite = nullptr;
            std::size_t m_rang = 0, m_taille = 0;
            std::int32_t m_noeud = 0, m_fin = 0;
        };

        [[nodiscard]] std::size_t size() const { return m_taille; }
        [[nodiscard]] bool empty() const { return m_taille == 0; }
        [[nodiscard]] std::int32_t operator[](std::size_t rang) const;
        [[nodiscard]] std::int32_t front() const { return (*this)[0]; }
        [[nodiscard]] Iterateur begin() const { return {*m_arbre, m_suites.data(), 0, m_taille}; }
        [[nodiscard]] Iterateur end() const { return {*m_arbre, nullptr, m_taille, m_taille}; }

      private:
        friend class Arbre;
        Enfants(const Arbre& arbre, std::span<const std::int32_t> suites, std::size_t taille)
            : m_arbre(&arbre), m_suites(suites), m_taille(taille) {}

        const Arbre* m_arbre;
        std::span<const std::int32_t> m_suites;
        std::size_t m_taille;
    };

    void Clear() noexcept;  // generation() rises
    // Takes over what another tree holds, filled aside: all its nodes at once, or none. generation() rises.
    void remplace(Arbre&& neuf) noexcept;
    void reserve(std::size_t films, std::size_t octetsDeTexte);

    int ajouteGroupe(std::string_view cle, std::string_view texte);
    // `position` is the film's 1-based row in the listing; `groupe` the index of its heading, 0 for the root.
    int ajouteFilm(int groupe, std::uint32_t position, std::string_view titre);

    // Takes a film's node out: those after it move up by one, as in a node collection. Keys and positions stay, and so
    // does the heading of a last film. generation() rises.
    void retire(int indice);

    [[nodiscard]] int Count() const { return static_cast<int>(m.debuts.size()); }
    [[nodiscard]] bool estGroupe(int indice) const { return suiteDe(indice).position == 0; }
    [[nodiscard]] std::string Key(int indice) const;  // "T" + group, "K" + position
    [[nodiscard]] std::string_view Text(int indice) const;
    // What follows a heading's own text, its percentage. versionDesTextes() rises.
    void changeSuiteGroupe(int indice, std::string_view suite);
    [[nodiscard]] std::string_view texteDuGroupe(int indice) const;  // without what follows
    [[nodiscard]] std::uint32_t position(int indice) const;          // 0 for a heading
    [[nodiscard]] int Parent(int indice) const;                      // 0: the root
    [[nodiscard]] int rang(int indice) const;                        // among its siblings, from 0
    [[nodiscard]] Enfants enfants(int indice) const;                 // of a heading, or of the root (0)
    [[nodiscard]] int noeudDuFilm(std::uint32_t position) const;     // 0: none has that position

    [[nodiscard]] int generation() const { return m_generation; }
    // Rises where the tree is filled anew, and then alone: positions mean other rows.
    [[nodiscard]] int remplissages() const { return m_remplissages; }
    [[nodiscard]] int versionDesTextes() const { return m_versionDesTextes; }

  private:
    struct Groupe {
        std::int32_t noeud = 0;
        std::int32_t suites = 0;  // the number of its only run, or below 0: which of `morceles`
        std::int32_t enfants = 0;
        std::uint32_t texte = 0;  // where it begins in `textes`; it ends where the next one does
    };
    struct Contenu {
        std::vector<Suite> suites;  // in the order of their nodes
        Groupe racine;
        std::vector<Groupe> groupes;                      // the headings, numbered from 1
        std::vector<std::vector<std::int32_t>> morceles;  // the runs of those that have several
        std::map<std::int32_t, std::string> cles;         // of headings, other than "T" + their number
        std::string textes;                               // of the headings
        std::vector<std::string> textesSuivis;            // with what follows, "" where nothing does; empty: nowhere
        std::size_t suivis = 0;                           // how many have something
        std::string titres;                               // one after the other, in the order of their nodes
        std::vector<std::uint32_t> debuts;                // of each node in `titres`
    };
    [[nodiscard]] std::size_t numeroDeSuite(int indice) const;
    [[nodiscard]] const Suite& suiteDe(int indice) const { return m.suites[numeroDeSuite(indice)]; }
    [[nodiscard]] std::int32_t finDe(std::size_t suite) const {  // the node after its last
        return suite + 1 < m.suites.size() ? m.suites[suite + 1].noeud : Count() + 1;
    }
    [[nodiscard]] const Groupe& groupe(std::int32_t numero) const {
        return numero == 0 ? m.racine : m.groupes[static_cast<std::size_t>(numero - 1)];
    }
    [[nodiscard]] Groupe& groupe(std::int32_t numero) {
        return const_cast<Groupe&>(std::as_const(*this).groupe(numero));
    }
    [[nodiscard]] std::int32_t numeroDuGroupe(int indice) const { return indice == 0 ? 0 : suiteDe(indice).groupe; }
    [[nodiscard]] std::string_view texteNu(std::int32_t numero) const;
    [[nodiscard]] std::span<const std::int32_t> suitesDe(const Groupe& groupe) const;
    void ajouteSuite(std::int32_t duGroupe, Suite suite);
    void coupe(std::size_t suite, int indice);
    void ote(std::size_t suite, int indice);

    Contenu m;
    mutable std::size_t m_suiteRecente = 0;  // nodes are mostly asked for one after the other
    int m_generation = 0;
    int m_remplissages = 0;
    int m_versionDesTextes = 0;
};

}  // namespace browse
