#pragma once

#include "platform/systeme/Programmes.h"

#include <functional>
#include <string>
#include <vector>

namespace doubles {

// Starts nothing; remembers each command and answers `issue`. A program waited for ends by itself at the `toursAvantFin`-th
// look at it, after `pendantLaMarche` (which may write the files that the program would write), or when it is ended.
class ProgrammesSimules final : public systeme::Programmes {
  public:
    systeme::Lancement issue = systeme::Lancement::Fait;
    int toursAvantFin = 1;
    std::function<void()> pendantLaMarche;

    std::vector<systeme::Commande> lances;    // started and forgotten
    std::vector<systeme::Commande> attendus;  // started to be waited for
    int termines = 0;                         // those that were ended before they were over

    systeme::Lancement lance(const systeme::Commande& commande) override {
        lances.push_back(commande);
        return issue;
    }
    systeme::ProgrammeLance lancePourAttendre(const systeme::Commande& commande) override {
        attendus.push_back(commande);
        if (issue != systeme::Lancement::Fait) return {issue, nullptr};
        return {issue, std::make_unique<EnCours>(*this)};
    }

  private:
    class EnCours final : public systeme::ProgrammeEnCours {
      public:
        explicit EnCours(ProgrammesSimules& programmes) : m_programmes(programmes) {}
        bool attendsFin(std::chrono::milliseconds) override {
            if (!m_fini && ++m_tours >= m_programmes.toursAvantFin) {
                m_fini = true;
                if (m_programmes.pendantLaMarche) m_programmes.pendantLaMarche();
            }
            return m_fini;
        }
        void termine() override {
            if (!m_fini) ++m_programmes.termines;
            m_fini = true;
        }

      private:
        ProgrammesSimules& m_programmes;
        int m_tours = 0;
        bool m_fini = false;
    };
};

}  // namespace doubles
