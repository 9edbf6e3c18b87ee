#pragma once

#include "platform/dao/Souffle.h"
#include "platform/dao/Tampon.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace dao::interne {

// Keys of rows, added in any number, then put in order by their bytes.
//
// A first column of few values (genres, years) is numbered as it comes, so that rows are told apart by a number instead
// of by the same long beginnings; one of many values (titles) soon gives that up.
class Ordre {
  public:
    enum class PremiereColonne { PeutEtreParGroupes, SansGroupes };
    explicit Ordre(PremiereColonne premiere = PremiereColonne::PeutEtreParGroupes)
        : m_parGroupes(premiere == PremiereColonne::PeutEtreParGroupes) {}

    // A column of the key of the row being added. Null comes first; a number orders by its value.
    void ajouteTexte(std::string_view cleJet);
    void ajouteNombre(double nombre);
    void ajouteNul() { ajouteTexte({}); }
    // Ends the row's key.
    void finit();

    // The rows by their rank of addition, in order, those of equal keys as `precede` says; `sansDoublons` keeps the first
    // of these.
    using Precede = std::function<bool(std::uint32_t, std::uint32_t)>;
    [[nodiscard]] std::vector<std::uint32_t> rangs(bool sansDoublons, const Precede& precede,
                                                   const Souffle& souffle = {});
    // After rangs: from where to where, in what it answered, rows stand of one key; rows alone in theirs are passed over.
    [[nodiscard]] std::vector<std::pair<std::size_t, std::size_t>> egales() const;

  private:
    // What is compared first lies in the entry, so that hardly any comparison leaves for the keys: the first sixteen bytes,
    // or the group and the next fourteen.
    struct Entree {
        std::uint64_t prefixe;
        std::uint64_t suite;
        std::uint32_t rang;
        std::uint32_t saut;  // bytes of the key that the group stands for
    };
    [[nodiscard]] std::string_view cle(std::uint32_t rang) const {
        const std::uint64_t debut = rang == 0 ? 0 : m_fins[rang - 1];
        return {m_cles.begin() + debut, m_fins[rang] - debut};
    }
    [[nodiscard]] std::string_view cle(const Entree& entree) const { return cle(entree.rang).substr(entree.saut); }
    struct Groupe {
        std::uint32_t numero;
        std::uint32_t taille;
    };
    struct Hachage {
        using is_transparent = void;
        std::size_t operator()(std::string_view cle) const { return std::hash<std::string_view>{}(cle); }
    };
    [[nodiscard]] bool ontLaMemeCle(const Entree& gauche, const Entree& droite) const {
        return gauche.prefixe == droite.prefixe && gauche.suite == droite.suite && cle(gauche) == cle(droite);
    }
    [[nodiscard]] std::size_t debutDeLigne() const { return m_fins.size() == 0 ? 0 : m_fins[m_fins.size() - 1]; }
    void finitColonne(std::size_t debut);
    [[nodiscard]] std::uint32_t groupe(std::string_view premiereColonne);
    void prefixeParGroupes();
    void prefixeParOctets();

    Tampon<char> m_cles;            // one after the other
    Tampon<std::uint64_t> m_fins;   // where each ends, by rank of addition
    std::size_t m_finPremiere = 0;  // of the row being added
    std::unordered_map<std::string, Groupe, Hachage, std::equal_to<>> m_groupes;
    bool m_parGroupes;
    Tampon<std::uint32_t> m_numeros;  // of each row's group
    Tampon<Entree> m_entrees;
};

}  // namespace dao::interne
