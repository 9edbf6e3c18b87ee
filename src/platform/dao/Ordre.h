#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace dao::interne {

// Keys of rows, added in any number, then put in order: by their bytes, then by the numbers they were ended with.
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
    // Ends the row's key; rows of equal keys follow each other by these two numbers.
    void finit(long long premier, long long second);

    void change(std::uint32_t rang, long long premier) { m_suites[rang].first = premier; }

    // The rows by their rank of addition, in order; `sansDoublons` keeps the first of rows with equal keys.
    [[nodiscard]] std::vector<std::uint32_t> rangs(bool sansDoublons);
    // After rangs: from where to where, in what it answered, rows stand of one key; rows alone in theirs are passed over.
    [[nodiscard]] std::vector<std::pair<std::size_t, std::size_t>> egales() const;

  private:
    struct Entree {
        std::uint64_t prefixe;  // what is compared first: the key's first eight bytes, or its group and the next six
        std::uint64_t debut;
        std::uint32_t taille;
        std::uint32_t rang;
    };
    [[nodiscard]] std::string_view cle(const Entree& entree) const {
        return std::string_view(m_cles).substr(entree.debut, entree.taille);
    }
    struct Groupe {
        std::uint32_t numero;
        std::uint32_t taille;
    };
    struct Hachage {
        using is_transparent = void;
        std::size_t operator()(std::string_view cle) const { return std::hash<std::string_view>{}(cle); }
    };
    [[nodiscard]] bool ontLaMemeCle(const Entree& gauche, const Entree& droite) const {
        return gauche.prefixe == droite.prefixe && cle(gauche) == cle(droite);
    }
    void finitColonne(std::size_t debut);
    [[nodiscard]] std::uint32_t groupe(std::string_view premiereColonne);
    void prefixeParGroupes();
    void prefixeParOctets();

    std::string m_cles;
    std::size_t m_finPremiere = 0;  // of the row being added
    std::unordered_map<std::string, Groupe, Hachage, std::equal_to<>> m_groupes;
    bool m_parGroupes;
    std::size_t m_debut = 0;
    std::vector<Entree> m_entrees;
    std::vector<std::pair<long long, long long>> m_suites;
};

}  // namespace dao::interne
