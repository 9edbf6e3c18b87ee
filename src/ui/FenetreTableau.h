#pragma once

#include "ui/Atelier.h"
#include "voisins/Tableau.h"

#include <QDialog>
#include <vector>

class QPushButton;
class QTableWidget;

namespace ui {

class Etiquette;
class ListeDeroulante;

// The first lines of a table that is to be imported, and above each of its columns what it holds: as its name says, then
// as the user does.
class FenetreTableau final : public QDialog {
    Q_OBJECT
  public:
    FenetreTableau(const Atelier& atelier, voisins::Tableau tableau, QWidget* parent);

  private:
    [[nodiscard]] QTableWidget* apercu();
    void suis();
    void examine();

    const Atelier m_atelier;
    voisins::Tableau m_tableau;
    Etiquette* m_texte;
    QPushButton* m_continuer;
    std::vector<ListeDeroulante*> m_choix;
};

}  // namespace ui
