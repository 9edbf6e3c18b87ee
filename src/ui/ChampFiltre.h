#pragma once

#include "ui/Atelier.h"

#include <QLabel>
#include <QTimer>
#include <QWidget>

class QKeyEvent;
class QLineEdit;

namespace ui {

class BoutonPuce;
class VueTitres;

// The field above the title tree, and what the tree is limited to beside it. What is typed hides films at once: it is no
// command, and waits for the one that is running. The filter itself is app::noeudsFiltres, its state etats.filtre.
class ChampFiltre final : public QWidget {
    Q_OBJECT
  public:
    ChampFiltre(const Atelier& atelier, VueTitres& titres, QWidget* parent = nullptr);

    void montreTout();  // neither words nor limit

    [[nodiscard]] QLabel* compte() { return m_compte; }  // "12 titres sur 840", hidden while nothing is filtered

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void suisLaSaisie();
    void applique();
    [[nodiscard]] bool grandeListe() const;
    void suisLEtat();
    void prepare();
    [[nodiscard]] bool prends(const QKeyEvent& evenement);

    const Atelier m_atelier;
    VueTitres& m_titres;
    QLineEdit* m_champ;
    BoutonPuce* m_limite;
    QLabel* m_compte;
    bool m_enAttente = false;  // of the end of a command, or of the preparation
    bool m_peinte = false;     // the list was shown
    int m_remplissage = 0;     // of the tree that is prepared, or will be
    std::string m_base;
    QTimer m_preparation, m_annonce;
};

}  // namespace ui
