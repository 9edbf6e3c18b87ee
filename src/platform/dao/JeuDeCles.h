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
    JeuDeCles(Connexion& connexion, Plan plan, Resultat resultat);

    // The rows of this plan, where they are ours in another order and nothing was changed since they were read.
    [[nodiscard]] std::optional<Resultat> reordonne(Connexion& connexion, const Plan& plan) const;

    [[nodiscard]] long place() const override { return aUnCourant() ? m_position : -1; }
    void allege() override;

  protected:
    void premier() override { m_position = 0; }
    void pas(long nombre) override;
    [[nodiscard]] bool estAuBout() const override { return m_position >= taille(); }
    [[nodiscard]] bool aUnCourant() const override { return m_position >= 0 && m_position < taille(); }
    [[nodiscard]] const long long* ligne(RangTable table) override;
    [[nodiscard]] long combien() override { return taille(); }
    [[nodiscard]] Valeur lit(ChampDeJeu champ) override;
    void vaParcourir(ChampDeJeu champ) override;
    [[nodiscard]] bool litVue(ChampDeJeu champ, std::string_view& texte) override;
    [[nodiscard]] bool estModifiable() const override { return !m_plan.distinct; }
    void accueille(const Par<RangTable, long long>& lignes) override;

  private:
    [[nodiscard]] long taille() const { return static_cast<long>(m_resultat.lignes[kPremiere].size()); }
    [[nodiscard]] RangLigne ligneGardee(RangTable table) const {
        return m_resultat.lignes[table][static_cast<std::size_t>(m_position)];
    }
    [[nodiscard]] std::optional<ValeurVue> gardee(ChampDeJeu champ);
    [[nodiscard]] bool litDAvance(ChampDeJeu champ, std::string_view& texte);
    [[nodiscard]] std::vector<std::optional<long long>> lignesDepuis(RangTable table, std::size_t nombre) const;
    void exigePresent();

    struct Gardees {
        Par<RangColonne, std::optional<RangLu>> rangs;  // where a column is kept with the rows
        std::size_t lignes;                             // that the statement brought; added ones follow
    };
    Plan m_plan;
    Resultat m_resultat;
    Par<RangTable, Gardees> m_gardees;
    Par<RangTable, LectureDAvance> m_avances;
    bool m_allege = false;
    std::uint64_t m_version;
    std::uint64_t m_epoque;
    long m_position = 0;
};

}  // namespace dao::interne
