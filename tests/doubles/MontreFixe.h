#pragma once

#include "platform/systeme/Montre.h"

namespace doubles {

// A watch that stands until the test moves it on: however slow the machine is, no time goes by.
class MontreFixe {
  public:
    MontreFixe() = default;
    MontreFixe(const MontreFixe&) = delete;
    MontreFixe& operator=(const MontreFixe&) = delete;

    [[nodiscard]] systeme::Montre montre() const {
        return [this] { return m_heure; };
    }
    void avance(std::chrono::milliseconds duree) { m_heure += duree; }

  private:
    std::chrono::steady_clock::time_point m_heure{std::chrono::hours(1)};
};

}  // namespace doubles
