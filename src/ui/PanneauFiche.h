#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class CadreAffiche;
class Etiquette;

// The film sheet: the poster first, the title, the facts, the summary; beside or behind them the user's own copy.
class PanneauFiche final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauFiche(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void dimensionneAffiche();
    void suisLeFilm();
    [[nodiscard]] QWidget* colonneFilm(QWidget* generalites, QWidget* autres);
    [[nodiscard]] QLayout* entete();
    [[nodiscard]] QLayout* puces();
    [[nodiscard]] QWidget* onglets();
    [[nodiscard]] QLayout* colonneAffiche();
    [[nodiscard]] QWidget* sousAffiche();
    [[nodiscard]] QWidget* faits();
    [[nodiscard]] QWidget* resume();

    const Atelier m_atelier;
    CadreAffiche* m_affiche = nullptr;
    QWidget* m_sousAffiche = nullptr;
    Etiquette* m_titre = nullptr;
    QWidget* m_resume = nullptr;
    QString m_film;  // told last
};

}  // namespace ui
