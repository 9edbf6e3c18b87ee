#pragma once

#include "browse/EtatListe.h"
#include "ui/Liaison.h"
#include "ui/ModeleArbre.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace ui {

// The title tree. Its signals are the user's gestures alone: a row that becomes current by itself tells nothing. The
// current row is where the keys stand; the selected one is the film whose sheet was asked for.
class VueTitres final : public QTreeView {
    Q_OBJECT
  public:
    explicit VueTitres(browse::VueArbre& etat, QWidget* parent = nullptr);

    [[nodiscard]] ModeleArbre& modele() { return m_modele; }
    [[nodiscard]] std::unique_ptr<Lien> lien(const browse::EtatListe& liste);

    // What is shown of the tree, asked for at each filling of it. The headings of what is filtered are open; those that
    // were before are again when nothing is any more.
    void filtrePar(std::function<Noeuds()> filtre) { m_filtre = std::move(filtre); }
    void filtreANouveau();      // it answers something else
    bool choisitPremierFilm();  // of those shown, as a click on it does; false: there is none
    // What is typed leads to the next film whose title begins so, letter case and accents aside, its heading open or
    // not; to a heading only where there is no such film.
    void keyboardSearch(const QString& texte) override;

  signals:
    void noeudChoisi(int indice);                         // click, or a key that moved to it or pressed it
    void menuDemande(int indice, const QPoint& endroit);  // right click, 0 over no node; the place is global
    void filtreVoulu();                                   // "/" was typed
    void peinte();                                        // painted for the first time

  protected:
    void focusOutEvent(QFocusEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    class LienArbre;
    static constexpr int kRetraitDArbre = 18, kRetraitDeListe = 6;

    using Libelles = std::set<std::string, std::less<>>;  // of headings, without the percentages that may follow
    // What comes back when the filter goes.
    struct AvantFiltre {
        Libelles ouverts;
        int defilement = 0;
        int choisi = 0;
    };

    void clique(const QModelIndex& index);
    [[nodiscard]] int choisi() const;
    [[nodiscard]] std::string_view libelle(const QModelIndex& groupe) const;  // empty for what is none
    void ouvre(const Libelles& libelles);
    void ouvreTout();
    void entreParLaPremiere();
    [[nodiscard]] bool prends(const QMouseEvent& evenement);
    [[nodiscard]] QModelIndex caseSous(const QMouseEvent& evenement) const;
    void ditLeGroupe(const QModelIndex& groupe);
    void basculeGroupe(const QModelIndex& index);
    void montreNoeud(int indice);
    [[nodiscard]] bool frappeEnCours() const;
    [[nodiscard]] bool choisitCourant(const QKeyEvent& evenement) const;

    ModeleArbre m_modele;
    std::function<Noeuds()> m_filtre;
    AvantFiltre m_avantFiltre;
    Libelles m_ouverts;  // of the open headings
    QPersistentModelIndex m_casePressee, m_pressee;
    QTimer m_resteAOuvrir;  // headings of what is filtered, beyond those first seen
    QString m_frappe;       // typed so far, to find a title
    QElapsedTimer m_depuisLaFrappe;
    bool m_peinte = false;
};

}  // namespace ui
