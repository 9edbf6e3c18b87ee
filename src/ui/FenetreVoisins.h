#pragma once

#include "ui/Atelier.h"
#include "voisins/Examen.h"

#include <QDialog>

class QCheckBox;
class QPushButton;

namespace ui {

class ModeleVoisins;

// What another program's collection would bring, before anything is written: which films are new, which are there. From
// here what is ticked is imported.
class FenetreVoisins final : public QDialog {
    Q_OBJECT
  public:
    FenetreVoisins(const Atelier& atelier, voisins::Examen examen, QWidget* parent);

  private:
    void suis();
    void importe();

    const Atelier m_atelier;
    ModeleVoisins* m_modele;
    QCheckBox* m_possedes;
    QCheckBox* m_complete;
    QPushButton* m_importer;
};

// Asks for the collection, a file or a folder, reads it with progress and stop, and shows what it would bring, over the
// window of that widget. `depart` is where the choice begins, and is left where it went.
void ouvreImportDeCollection(const Atelier& atelier, QWidget* widget, bool unDossier, std::string& depart);
// The same of a collection that is at hand.
void ouvreImportDeposee(const Atelier& atelier, QWidget* widget, const std::string& chemin);

}  // namespace ui
