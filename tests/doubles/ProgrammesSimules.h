#pragma once

#include "platform/systeme/Programmes.h"

#include <memory>
#include <string>
#include <vector>

namespace doubles {

// Starts nothing; remembers each command and answers `issue`. A program waited for is over at the first look at it.
// With `vrais`, hands the commands on to it.
class ProgrammesSimules final : public systeme::Programmes {
  public:
    systeme::Lancement issue = systeme::Lancement::Fait;
    systeme::Programmes* vrais = nullptr;

    std::vector<systeme::Commande> lances;    // started and forgotten
    std::vector<systeme::Commande> attendus;  // started to be waited for

    systeme::Lancement lance(const systeme::Commande& commande) override {
        lances.push_back(commande);
        if (vrais) return vrais->lance(commande);
        return issue;
    }
    systeme::ProgrammeLance lancePourAttendre(const systeme::Commande& commande) override {
        attendus.push_back(commande);
        if (vrais) return vrais->lancePourAttendre(commande);
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
