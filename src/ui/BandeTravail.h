#pragma once

#include "ui/Atelier.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace ui {

// The strip at the bottom while long work runs: what is being done, how far it is, and "Annuler". How far it is stands in
// one place: in the panel where that shows it, else here.
class BandeTravail final : public QWidget {
    Q_OBJECT
  public:
    explicit BandeTravail(const Atelier& atelier, QWidget* parent = nullptr);

    void montre();  // work has begun

  private:
    void suis(const app::Etats& etats);
    [[nodiscard]] bool seVoitDansSonPanneau(const char* barre) const;

    QLabel* m_texte;
    QProgressBar* m_progression;
    QPushButton* m_annuler;
    bool m_aAnnoncer = false;  // what it is, to screen readers
};

}  // namespace ui
