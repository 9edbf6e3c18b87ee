#pragma once

#include "ui/Atelier.h"
#include "ui/MenusArbre.h"
#include "ui/Raccourcis.h"
#include "ui/SuiviDuFocus.h"

#include <QPointer>
#include <QWidget>
#include <optional>

class QPushButton;
class QSplitter;
class QVBoxLayout;

namespace ui {

class Depot;
class PageGroupe;
class PageVide;
class PanneauListe;

// The window: a frame around its panels. The panels that the start does not show are built after the first painting.
class FenetrePrincipale final : public QWidget {
    Q_OBJECT
  public:
    explicit FenetrePrincipale(const Atelier& atelier);

    // Shows the window at the size of the settings. The program was loaded before.
    void ouvre();

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    class LienTaille;

    void compose();
    void completePanneaux();
    void vaDansLaZone(int pas);
    void suitLesCommandes();
    void executeDemandes();
    void vientDevant();
    void choisitParDefaut(const std::string& nom);
    void suisLargeur();
    void repartis();
    [[nodiscard]] QSize tailleVoulue() const;
    [[nodiscard]] QSize place() const;
    void tiensALEcran();

    const Atelier m_atelier;
    PanneauListe* m_liste = nullptr;
    QSplitter* m_partage = nullptr;
    bool m_partageChoisi = false;  // the user moved what parts list and pages
    QVBoxLayout* m_droite = nullptr;
    std::optional<SuiviDuFocus> m_focus;
    PageGroupe* m_page = nullptr;
    Depot* m_depot = nullptr;
    PageVide* m_vide = nullptr;
    QWidget* m_bas = nullptr;  // its foot
    const Raccourcis m_raccourcis;
    std::optional<MenusArbre> m_menus;  // with the late panels
    QPoint m_endroitMenu;
    QPointer<QPushButton> m_parDefaut;
    bool m_deuxPages = false;
    bool m_fermetureDemandee = false;  // while a command runs
};

}  // namespace ui
