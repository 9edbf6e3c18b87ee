#pragma once

#include "ui/ModelePrets.h"

#include <QTreeView>

namespace ui {

// Loans, or reservations: several rows can be chosen, a heading sorts, and so does the context menu. What is chosen stays
// chosen when the table is filled again or sorted.
class TablePrets final : public QTreeView {
    Q_OBJECT
  public:
    TablePrets(ModelePrets::Sorte sorte, const char* nom, const QString& titre);

    [[nodiscard]] ModelePrets& modele() { return m_modele; }
    [[nodiscard]] std::vector<ensemble::Pret> choisis() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void choixChange();
    void ficheDemandee(const db::CleFilm& film);  // Enter, or a double click

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    void composeEntete();
    void mesureLesColonnes();
    void metLesLargeurs();
    void retiensLeChoix();
    void remetsLeChoix();
    [[nodiscard]] int hauteur(int lignes) const;

    ModelePrets m_modele;
    std::vector<db::CleFilm> m_choisis;
    std::vector<int> m_largeurs;  // that the columns but the first would like
    int m_courante = -1;
    bool m_largeursChoisies = false;  // by the user
    bool m_metLesLargeurs = false;
};

}  // namespace ui
