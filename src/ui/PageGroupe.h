#pragma once

#include "browse/PageDuGroupe.h"
#include "ui/Atelier.h"

#include <QTimer>
#include <QWidget>
#include <array>

class QPushButton;

namespace ui {

class Etiquette;
class Vignette;

// What stands beside the list while no film is chosen: what it lists, how many films, and the posters of the first ones.
// The list is painted first: the page follows it, then its posters, read one at a time between two events and decoded
// aside.
class PageGroupe final : public QWidget {
    Q_OBJECT
  public:
    explicit PageGroupe(const Atelier& atelier, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void suis();
    void metAJour();
    void range();
    void recharge(int apres);
    void avance();
    void entrePar(std::size_t rang);
    void renomme() const;

    const Atelier m_atelier;
    Etiquette *m_nom, *m_compte;
    QPushButton *m_apercu, *m_renommer;
    QWidget* m_mur;
    std::array<Vignette*, browse::kAffichesDeLaPage> m_vignettes{};
    browse::PageDuGroupe m_page;
    int m_generation = -1;             // of the tree that the page was made from
    std::pair<int, int> m_vue{-1, 0};  // of the tree as it is now, and its chosen node
    bool m_perimee = false;            // the page is not theirs any more
    std::size_t m_rang = 0;            // of the next poster to be read
    QTimer m_suite;
};

}  // namespace ui
