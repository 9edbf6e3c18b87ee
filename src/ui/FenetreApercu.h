#pragma once

#include "ensemble/Apercus.h"
#include "ui/Atelier.h"

#include <QDialog>
#include <QTimer>

class QAbstractItemModel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace ui {

class Etiquette;
class ModeleApercu;

// What a command would change, before it is asked for it: before and after, line by line. From here the command itself is
// run, with its own questions.
class FenetreApercu final : public QDialog {
    Q_OBJECT
  public:
    struct Sujet {
        QString titre, executer;
        ensemble::Apercu apercu{};
        std::function<void(const std::string& nom)> commande;
        // Of a command that asks for a name: the one there is now, and what another one would change.
        std::string nom{};
        std::function<ensemble::Apercu(const app::Contexte&, const std::string& nom)> apercuDe{};
    };
    FenetreApercu(const Atelier& atelier, Sujet sujet, QWidget* parent);

  private:
    [[nodiscard]] QLayout* saisie();
    void regarde();
    void montre(ensemble::Apercu apercu);
    void execute();

    const Atelier m_atelier;
    const Sujet m_sujet;
    ModeleApercu* m_modele;
    QTreeView* m_liste;
    Etiquette* m_texte;
    QLineEdit* m_nom = nullptr;  // only where a name is asked for
    QPushButton* m_executer;
    QTimer m_repos;
};

// Open it, over the window of that widget: of the correction of all titles, read with progress and stop; of the renaming of
// the heading that is chosen in the tree.
void ouvreApercuDesTitres(const Atelier& atelier, QWidget* widget);
void ouvreApercuDuRenommage(const Atelier& atelier, QWidget* widget, bool personnel);

}  // namespace ui
