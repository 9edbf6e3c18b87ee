#pragma once

#include "rapatrix/Collecte.h"
#include "rapatrix/ListeFiches.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>
#include <QWidget>

namespace rapatrix {

// The window of one search: the films found, those chosen on their way into the folder, and the end. Closing it stops
// what goes on; the sheets received stay.
class Fenetre final : public QWidget {
    Q_OBJECT
  public:
    explicit Fenetre(const Reglages& reglages) : Fenetre(reglages, Collecte::Delais{}) {}
    Fenetre(const Reglages& reglages, const Collecte::Delais& delais);

    void demarre();  // searches when the configuration says so

  protected:
    void closeEvent(QCloseEvent* evenement) override;

  private:
    void compose();
    void suis();  // what the search tells
    void cherche();
    void telecharge();
    void arrete();
    void rechercheFinie(const QString& probleme);
    void ficheFinie(const QString& adresse, Collecte::Issue issue, const QString& probleme);
    void dit(const QString& texte);
    void actualise();  // which buttons can be pressed

    Reglages m_reglages;
    Collecte m_collecte;
    ListeFiches m_liste;
    FiltreFiches m_filtre;
    QLabel* m_etat;
    QLineEdit* m_mots;
    QTreeView* m_vue;
    QProgressBar* m_barre;
    QPushButton *m_tout, *m_aucun, *m_rechercher, *m_telecharger, *m_arreter, *m_terminer;
    int m_demandees = 0, m_faites = 0, m_recues = 0;
};

}  // namespace rapatrix
