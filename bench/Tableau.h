#pragma once

#include <optional>
#include <string>

namespace bench {

// One line of the table. A ratio's target is held against figure / floor, a plain one against the figure itself.
struct Ligne {
    std::string mesure, unite;
    double valeur = 0;
    std::optional<double> plancher;
    std::optional<double> cible;
    bool cibleEnRapport = false;
};

class Tableau {
  public:
    void titre(const std::string& texte);
    void ajoute(const Ligne& ligne);
    [[nodiscard]] int depassements() const { return m_depassements; }

  private:
    int m_depassements = 0;
};

}  // namespace bench
