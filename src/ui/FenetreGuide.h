#pragma once

#include "ui/Atelier.h"
#include "ui/Interface.h"
#include "ui/PagesDuGuide.h"

#include <QWidget>
#include <optional>

class QDialog;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace ui {

class VueGuide;

// F1: the page of the guide that the control in use names, or the nearest one above it that does (donneUnePage), else
// that of the panel shown.
void demandeLeGuide(const Atelier& atelier, const QWidget* enUsage);
void donneUnePage(QWidget* widget, const char* page);
// Of a window of its own, which is given F1 too.
void donneUnePage(const Atelier& atelier, QDialog* fenetre, const char* page);

// The guide in a window of its own: its contents, which a search narrows, and a page. It needs no browser and no network;
// a browser shows the same files. Composed when it is first asked for.
class FenetreGuide final : public QWidget {
    Q_OBJECT
  public:
    explicit FenetreGuide(const Atelier& atelier, QWidget* parent);
    ~FenetreGuide() override;

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    void compose();
    QWidget* gauche();
    QWidget* droite();
    void listeLesPages();
    void presente();
    void suisLaPage();
    void suisLaRecherche();
    void cherche(int sens);
    void ditOuOnEnEst();
    void noteLaTaille();
    [[nodiscard]] std::size_t pageMontree() const;  // among m_trouvees; their number when it is none of them

    const Atelier m_atelier;
    int m_presentation = 0;  // the last one carried out
    std::optional<PagesDuGuide> m_pages;
    std::optional<Interface> m_interface;
    std::vector<std::size_t> m_trouvees;  // the pages of the list
    QTreeWidget* m_liste = nullptr;
    QLineEdit* m_recherche = nullptr;
    QLabel* m_compte = nullptr;
    QWidget *m_avant = nullptr, *m_apres = nullptr;  // to the passages
    VueGuide* m_vue = nullptr;
};

}  // namespace ui
