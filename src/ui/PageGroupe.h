#pragma once

#include "ensemble/MurDAffiches.h"
#include "ui/Atelier.h"

#include <QTimer>
#include <QWidget>
#include <optional>
#include <string>

class QPushButton;

namespace ui {

class Etiquette;
class MurDAffiches;

// What stands beside the list while no film is chosen, and on the page of posters of the collection: what the list holds,
// how many films, and their wall of posters. The list is painted first: the page follows it.
class PageGroupe final : public QWidget {
    Q_OBJECT
  public:
    explicit PageGroupe(const Atelier& atelier, QWidget* parent = nullptr);

    void repeins();  // what the films' marks are is known now

  signals:
    // A right click on the tile of a node, or of a film that the tree need not have; the place is global.
    void menuDemande(int indice, const QPoint& endroit);
    void menuDuFilmDemande(const db::CleFilm& film, const QPoint& endroit);

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    // What the page was made from.
    struct Origine {
        int generation = -1, groupe = 0;
        bool rangees = false;
        std::string base, images;  // where it is, and its poster files
        dao::Database::Changements changements;
        [[nodiscard]] bool memesFilms(const Origine& autre) const {
            return base == autre.base && images == autre.images && changements == autre.changements;
        }
        friend bool operator==(const Origine&, const Origine&) = default;
    };
    // What a list that is filled again is known by.
    struct Contenu {
        int tri = 0, zone = -1;
        std::string critere, groupe;
        friend bool operator==(const Contenu&, const Contenu&) = default;
    };
    void suis();
    void suisLeFiltre();
    void metAJour();
    [[nodiscard]] Origine origine() const;
    void perime();
    void choisit(int tuile);
    void demandeMenu(int tuile, const QPoint& endroit);
    void renomme() const;

    const Atelier m_atelier;
    Etiquette *m_nom, *m_compte;
    QPushButton *m_apercu, *m_renommer;
    MurDAffiches* m_mur;
    browse::PageDuGroupe m_page;
    std::optional<ensemble::LignesVues> m_vues;
    std::vector<ensemble::RangeeDuMur> m_rangees;
    std::optional<Origine> m_rangeesDe;  // what they were read from
    Origine m_origine;
    Contenu m_contenu;
    bool m_perimee = false;  // the page is not theirs any more
    bool m_rangeesVoulues = false;
    QTimer m_suite;
};

}  // namespace ui
