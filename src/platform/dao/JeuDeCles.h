#pragma once

#include "platform/dao/Jeu.h"
#include "platform/dao/LectureDAvance.h"
#include "platform/dao/Resultat.h"

#include <memory>
#include <optional>
#include <vector>

namespace dao::interne {

// A statement's records, fixed when it was run. What was kept with the rows is answered from memory as long as nobody
// changed the row; everything else is asked of the base.
class JeuDeCles : public Jeu {
  public:
    JeuDeCles(Connexion& connexion, const Plan& plan, Resultat resultat);

  protected:
    void premier() override { m_position = 0; }
    void pas(long nombre) override;
    [[nodiscard]] bool estAuBout() const override { return m_position >= taille(); }
    [[nodiscard]] bool aUnCourant() const override { return m_position >= 0 && m_position < taille(); }
    [[nodiscard]] const long long* ligne(int rangDeTable) override;
    [[nodiscard]] long combien() override { return taille(); }
    [[nodiscard]] Valeur lit(ChampDeJeu champ) override;
    void vaParcourir(ChampDeJeu champ) override;
    [[nodiscard]] bool litVue(ChampDeJeu champ, std::string_view& texte) override;
    [[nodiscard]] bool estModifiable() const override { return !m_fige; }
    void accueille(const std::vector<long long>& lignes) override;

  private:
    [[nodiscard]] long taille() const { return static_cast<long>(m_resultat.lignes[0].size()); }
    [[nodiscard]] std::uint32_t place(int rangDeTable) const;
    [[nodiscard]] bool gardee(ChampDeJeu champ, Magasin::Valeur& valeur);
    [[nodiscard]] bool litDAvance(ChampDeJeu champ, std::string_view& texte);
    [[nodiscard]] std::vector<std::optional<long long>> lignesDepuis(int rangDeTable, std::size_t nombre) const;
    void exigePresent();

    Resultat m_resultat;
    std::vector<std::vector<int>> m_rangs;  // for each table and column, where it is kept with the rows, or -1
    std::vector<std::size_t> m_lues;        // for each table, the rows that the statement brought; added ones follow
    std::vector<LectureDAvance> m_avances;  // for each table
    bool m_fige;                            // DISTINCT: values that belong to no row
    std::uint64_t m_version;
    std::uint64_t m_epoque;
    long m_position = 0;
};

}  // namespace dao::interne
