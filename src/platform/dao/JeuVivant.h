#pragma once

#include "platform/dao/Jeu.h"

#include <optional>
#include <string_view>

namespace dao::interne {

// The records of a table as they are, by row id.
class JeuVivant : public Jeu {
  public:
    JeuVivant(Connexion& connexion, Table& table);

  protected:
    void premier() override;
    void pas(long nombre) override;
    [[nodiscard]] bool estAuBout() const override { return m_ou == Ou::Apres; }
    [[nodiscard]] bool aUnCourant() const override { return m_ou == Ou::Dedans; }
    [[nodiscard]] const long long* ligne(RangTable) override { return &m_ligne; }
    [[nodiscard]] long combien() override;
    [[nodiscard]] Valeur lit(ChampDeJeu champ) override { return litDansLaBase(champ, m_ligne); }
    [[nodiscard]] bool litVue(ChampDeJeu, std::string_view&) override { return false; }
    void accueille(const Par<RangTable, long long>&) override {}

  private:
    enum class Ou { Avant, Dedans, Apres };
    // The n-th row (from 1) after the given one, or before it when `avant`.
    [[nodiscard]] std::optional<long long> rangee(std::optional<long long> depuis, long n, bool avant);

    long long m_ligne = 0;
    Ou m_ou = Ou::Apres;
};

}  // namespace dao::interne
