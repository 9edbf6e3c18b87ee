#pragma once

#include "ui/Atelier.h"
#include "ui/VueTitres.h"

#include <QTimer>
#include <QWidget>

namespace ui {

class ChampFiltre;

// The left side: what is listed, in which order, the title tree and its filter.
class PanneauListe final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauListe(const Atelier& atelier, QWidget* parent = nullptr);
    [[nodiscard]] VueTitres* titres() const { return m_titres; }
    [[nodiscard]] QWidget* comptes();  // for the window's foot

  signals:
    void marquesLues();  // what the films' marks tell is known

  private:
    [[nodiscard]] QWidget* choix();
    [[nodiscard]] QWidget* cadreTitres();
    [[nodiscard]] QWidget* raisonDuVide();
    [[nodiscard]] QWidget* filtreVide();
    void suisLesGestes();
    void suisLesMarques();
    void prepareLesMarques();

    const Atelier m_atelier;
    VueTitres* m_titres = nullptr;
    ChampFiltre* m_filtre = nullptr;
    QTimer m_marques;
};

}  // namespace ui
