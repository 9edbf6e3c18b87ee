#pragma once

#include "browse/MarquesFilm.h"
#include "ensemble/MurDAffiches.h"
#include "ensemble/PlanDuMur.h"
#include "ui/Atelier.h"
#include "ui/ChargeurAffiches.h"

#include <QElapsedTimer>
#include <QListView>
#include <QTimer>
#include <optional>
#include <unordered_map>

namespace ui {

class Interface;
class ModeleMur;

// The wall of posters, painted as a whole: a list to the keys and to screen readers, whose rows are the tiles. What the
// posters of the tiles in sight take is read from the base between two events, nearest first, and decoded aside.
class MurDAffiches final : public QListView {
    Q_OBJECT
  public:
    static constexpr int kAuBord = 4;  // left of the first tile: the focus is drawn around a poster

    explicit MurDAffiches(const Atelier& atelier, QWidget* parent = nullptr);
    ~MurDAffiches() override;

    // Another wall, from its top, or at the same height and tile where it shows the same films as they are now.
    void montre(ensemble::Mur mur, bool gardeSaPlace);
    void perime();  // posters or films may have changed: those in sight are looked at again

    [[nodiscard]] const ensemble::Mur& mur() const { return m_mur; }
    [[nodiscard]] const ChargeurAffiches& chargeur() const { return m_chargeur; }
    // All that is to be known of the tiles in sight is there.
    [[nodiscard]] bool estComplet() const;
    [[nodiscard]] QSize tailleDesAffiches() const;  // in pixels of the screen
    [[nodiscard]] bool aUneAffiche(int tuile) const;
    [[nodiscard]] QString nom(int tuile) const;  // "Alien, de Ridley Scott, 1979"
    [[nodiscard]] QString titre(int tuile) const;

    // A step larger, or smaller (-1); the tile at that place of the viewport stays there.
    void changeTaille(int pas, std::optional<QPoint> sous = {});
    void tailleParDefaut();

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    void keyboardSearch(const QString& texte) override;

  signals:
    void choisie(int tuile);                             // click, Enter
    void menuDemande(int tuile, const QPoint& endroit);  // the place is global

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers touches) override;
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect&, QItemSelectionModel::SelectionFlags) override {}
    QRegion visualRegionForSelection(const QItemSelection& choix) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex& courant, const QModelIndex& precedent) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

  private:
    // Of a tile that was in sight.
    struct Legende {
        QString titre, realisateur, annee;
        QByteArray film;  // what its poster is kept under
    };
    struct Entete {  // of a section that was in sight
        QString titre, precision;
    };
    [[nodiscard]] const browse::Arbre& arbre() const;
    [[nodiscard]] int noeud(int tuile) const;  // of the tree that the tiles are of
    const Entete& entete(std::size_t section);
    [[nodiscard]] browse::MarquesFilm marques(int tuile) const;
    void replace(int ancre, int hauteurDeLAncre);
    [[nodiscard]] ensemble::PlanDuMur::Mesures mesures(int niveau) const;
    void pose();
    void metNiveau(int niveau, std::optional<QPoint> sous = {});
    void reprends(int apres = 0);
    void avance();
    bool lisProchaine();
    void lisLaPage();
    const Legende& legendeLue(int tuile);
    [[nodiscard]] const Legende* legende(int tuile) const;
    [[nodiscard]] bool estDeLArbre() const;
    [[nodiscard]] bool peutLire() const;
    [[nodiscard]] int premiereEnVue() const;
    void repeins(const QByteArray& film);
    void peintEntete(QPainter& peintre, std::size_t section);
    void peintTuile(QPainter& peintre, int tuile) const;
    [[nodiscard]] bool frappeEnCours() const;
    Interface& interface();

    const Atelier m_atelier;
    ensemble::Mur m_mur;
    ensemble::PlanDuMur m_plan;
    ModeleMur* m_modele;
    ChargeurAffiches m_chargeur;
    std::unordered_map<int, Legende> m_legendes;
    std::unordered_map<std::size_t, Entete> m_entetes;
    const Entete m_sansEntete;
    std::vector<int> m_voulues;  // tiles, in the order in which they are wanted
    std::size_t m_rang = 0;      // of the next of them
    std::size_t m_enVue = 0;     // how many of them are in sight
    bool m_versLeBas = true;
    int m_generation = -1;  // of the tree whose nodes the tiles are
    int m_niveau;
    int m_pressee = -1;
    QTimer m_suite;
    std::unique_ptr<Interface> m_interface;
    QString m_frappe;
    QElapsedTimer m_depuisLaFrappe;
};

}  // namespace ui
