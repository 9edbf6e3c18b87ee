#pragma once

#include "platform/ecran/Controles.h"

namespace exportation {

// Shows how far a list is for as long as it is made.
class Avancement {
  public:
    Avancement(ecran::Progression& progression, long total) : m_progression(progression) {
        m_progression.Max = total;
        m_progression.Value = 0;
        m_progression.Visible = true;
    }
    Avancement(const Avancement&) = delete;
    Avancement& operator=(const Avancement&) = delete;
    ~Avancement() { m_progression.Visible = false; }

    void avance() { ++m_progression.Value; }

  private:
    ecran::Progression& m_progression;
};

}  // namespace exportation
