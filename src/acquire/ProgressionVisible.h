#pragma once

#include "edit/EtatAjout.h"

namespace acquire {

// The progress controls, on the screen for as long as the work lasts.
class ProgressionVisible {
  public:
    ProgressionVisible(edit::EtatAjout& ajout, long maximum) : m_ajout(ajout) {
        m_ajout.lblProgression.Caption.clear();
        m_ajout.ProgressBar1.Max = maximum;
        m_ajout.ProgressBar1.Value = 0;
        montre(true);
    }
    ProgressionVisible(const ProgressionVisible&) = delete;
    ProgressionVisible& operator=(const ProgressionVisible&) = delete;
    ~ProgressionVisible() { montre(false); }

  private:
    void montre(bool visible) {
        m_ajout.lblProgression.Visible = visible;
        m_ajout.ProgressBar1.Visible = visible;
    }
    edit::EtatAjout& m_ajout;
};

}  // namespace acquire
