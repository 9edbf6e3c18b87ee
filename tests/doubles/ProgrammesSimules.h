#pragma once

#include "platform/systeme/Programmes.h"

#include <memory>
#include <string>
#include <vector>

namespace doubles {

// Starts nothing; remembers each command and answers `issue`. A program waited for is over at the first look at it.
class ProgrammesSimules final : public systeme::Programmes {
  public:
    systeme::Lancement issue = systeme::Lancement::Fait;

    std::vector<systeme::Commande> lances;    // started and forgotten
    std::vector<systeme::Commande> attendus;  // started to be waited for

    systeme::Lancement lance(const systeme::Commande& commande) override {
        lances.push_back(commande);
        return issue;
    }
    systeme::ProgrammeLance lancePourAttendre(const systeme::Commande& commande) override {
        attendus.push_back(commande);
        if (issue != systeme::Lancement::Fait) return {issue, nullptr};
        return {issue, std::make_unique<EnCours>()};
    }

  private:
    class EnCours final : public systeme::ProgrammeEnCours {
      public:
        bool attendsFin(std::chrono::milliseconds) override { return true; }
        void termine() override {}
    };
};

}  // namespace doubles
