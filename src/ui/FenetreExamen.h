#pragma once

#include "edit/FilmExamine.h"
#include "ui/Atelier.h"

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QPushButton;
class QTreeView;

namespace ui {

class Etiquette;
class ExamenTrie;
class ModeleExamen;

// The films that an import would bring, wherever they come from, before anything is written: what would become of each,
// and which of them it is to take. From here the import itself is run, with its own questions.
class FenetreExamen final : public QDialog {
    Q_OBJECT
  public:
    // One film, to be looked at.
    struct Vue {
        edit::FilmLu film;
        std::optional<std::string> affiche{};  // the picture's bytes
    };
    using Rangs = std::vector<std::size_t>;  // in `films`
    struct Sujet {
        QString titre;       // of the window
        QString provenance;  // what heads the column that says where a film comes from: "Fiche"
        std::vector<edit::FilmExamine> films;
        bool complet = true;                                      // false: the reading was stopped
        std::function<std::optional<Vue>(std::size_t rang)> vue;  // nothing where it cannot be read any more
        // Runs the import of these; the window is closed by then.
        std::function<void(const Rangs&)> ajoute;
        // Completes the films that are there already, and answers which were; the window is hidden meanwhile. May be none.
        std::function<Rangs(const Rangs&)> complete{};
    };
    FenetreExamen(const Atelier& atelier, Sujet sujet, QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    [[nodiscard]] QTreeView* liste();
    [[nodiscard]] QLayout* choixDuGenre();
    [[nodiscard]] QLayout* boutons();
    void suisLesCoches();
    [[nodiscard]] std::vector<int> choisies() const;  // rows of the model
    [[nodiscard]] std::vector<int> montrees() const;
    void bascule();
    void voit();
    [[nodiscard]] std::optional<Vue> autre(const edit::FilmExamine& film);
    void ajoute();
    void complete();

    const Atelier m_atelier;
    const Sujet m_sujet;
    ModeleExamen* m_modele;
    ExamenTrie* m_trie;
    QTreeView* m_liste;
    QComboBox* m_genre = nullptr;
    Etiquette* m_texte;
    QPushButton *m_voir = nullptr, *m_completer = nullptr, *m_ajouter = nullptr;
};

}  // namespace ui
