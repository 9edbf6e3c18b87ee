#pragma once

#include "platform/systeme/DemandesDeFin.h"
#include "ui/Programme.h"

#include <QObject>

namespace ui {

// Ends the program as it should when somebody else than its user wants it to: a signal, the end of the desktop's
// session, the loss of the screen. One at a time; made before the program's start, and outlived by it.
class FinDemandee final : public QObject {
    Q_OBJECT
  public:
    explicit FinDemandee(Programme& programme);
    ~FinDemandee() override;

  private:
    Programme& m_programme;
    systeme::DemandesDeFin m_signaux;
};

}  // namespace ui
