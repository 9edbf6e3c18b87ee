#pragma once

#include "ui/Atelier.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace ui {

// Has the program import what its starts were asked to open, once no command runs and no box or menu is open.
class Ouvertures final : public QObject {
    Q_OBJECT
  public:
    // The window stands.
    Ouvertures(const Atelier& atelier, QObject* parent);

  private:
    void sers();
    [[nodiscard]] bool peutServir() const;

    const Atelier m_atelier;
    QFileSystemWatcher m_veilleur;
    QTimer m_attente;  // until the window is free: nothing tells when the last box closes
};

}  // namespace ui
