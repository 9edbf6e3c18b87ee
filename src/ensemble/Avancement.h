#pragma once

#include "ensemble/Contexte.h"

#include <chrono>
#include <string>

namespace ensemble {

// Long work that only reads: shows how far it is, lets the screen breathe now and then, and can be stopped.
class Avancement {
  public:
    // `c` outlives it. `total`: the steps of the whole work.
    Avancement(const Contexte& c, long total, const std::string& quoi);
    Avancement(const Avancement&) = delete;
    Avancement& operator=(const Avancement&) = delete;
    ~Avancement();

    // Some steps are done. False once the user asked to stop.
    bool avance(long pas = 1);
    [[nodiscard]] bool arrete() const { return m_arrete; }

  private:
    static constexpr std::chrono::milliseconds kEntreSouffles{40};

    const Contexte& m_c;
    ecran::Travail m_travail;
    std::chrono::steady_clock::time_point m_prochain;
    bool m_arrete = false;
};

}  // namespace ensemble
