#pragma once

#include "ensemble/Ressemblances.h"

#include <set>

namespace ensemble {

// What is still to be looked at of the pairs that a search found: not those that the user leaves aside, which stay aside
// for the next search too, nor those of which a film is gone. It may come back: a deletion is taken back.
class PairesAVoir {
  public:
    void met(const Contexte& c, Ressemblances trouvees);
    void oublie();  // another base
    // The base changed. Answers whether other pairs are to be looked at now. Throws as ressemblances does.
    bool actualise(const Contexte& c);
    void laisse(std::size_t rang);

    [[nodiscard]] std::size_t nombre() const { return m_rangs.size(); }
    [[nodiscard]] const Paire& paire(std::size_t rang) const { return m_trouvees.paires[m_rangs[rang]]; }
    [[nodiscard]] std::string texte() const;

  private:
    Ressemblances m_trouvees;
    std::vector<std::size_t> m_rangs;  // of the pairs to be looked at
    std::set<std::string> m_laissees;
};

}  // namespace ensemble
