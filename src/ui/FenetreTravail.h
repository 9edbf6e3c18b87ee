#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class BandeTravail;

// The strip of long work in a small window of its own: for work that is under way while the program's window is not
// shown yet. Closing it asks the work to stop.
class FenetreTravail final : public QWidget {
    Q_OBJECT
  public:
    explicit FenetreTravail(const Atelier& atelier);

    void montre();  // until the work ends

  protected:
    void closeEvent(QCloseEvent* evenement) override;

  private:
    EcranQt& m_ecran;
    BandeTravail* m_bande;
};

}  // namespace ui
