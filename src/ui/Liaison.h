#pragma once

#include "platform/ecran/Controles.h"

#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QRadioButton;
class QTextEdit;
class QWidget;

namespace ui {

class TexteLong;

// One control value of the state and the widget that shows it.
class Lien {
  public:
    virtual ~Lien() = default;
    virtual void lit() {}      // widget into state; only what the user can change
    virtual void ecrit() = 0;  // state into widget; only what changed since the last time
};

// Ties the state to the widgets. A value that the user did not touch is never read back, so what a widget cannot hold
// (line ends in a one-line box) is carried through. Writing raises no event of the user's. A widget tied late shows its
// value at once. The state outlives the liaison; so do the widgets.
class Liaison {
  public:
    void lie(ecran::Etiquette& etat, QLabel* widget);
    void lie(ecran::Etiquette& etat, QAbstractButton* widget);  // a label that acts
    void lie(ecran::Cadre& etat, QWidget* widget);  // the caption becomes the window title, which headings follow
    void lie(ecran::Bouton& etat, QAbstractButton* widget);
    void lie(ecran::ZoneTexte& etat, QLineEdit* widget);
    void lie(ecran::ZoneTexte& etat, TexteLong* widget);
    void lie(ecran::ZoneTexte& etat, QTextEdit* widget);  // shown, never typed in
    void lie(ecran::CaseACocher& etat, QCheckBox* widget);
    void lie(ecran::BoutonOption& etat, QRadioButton* widget);
    void lie(ecran::Liste& etat, QComboBox* widget);
    void lie(ecran::Progression& etat, QProgressBar* widget);
    void ajoute(std::unique_ptr<Lien> lien);
    // Called after each writing, for what depends on several values. What it builds may tie more, and follow as well.
    void apresEcriture(std::function<void()> suite) { m_suites.push_back(std::move(suite)); }

    void lit();
    void ecrit();

  private:
    std::vector<std::unique_ptr<Lien>> m_liens;
    std::deque<std::function<void()>> m_suites;  // one that is running stays where it is when another is added
};

}  // namespace ui
