#pragma once

#include "browse/EtatListe.h"
#include "browse/MarquesFilm.h"

#include <QAbstractItemModel>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace ui {

// Nodes of the tree, a heading before its films; nothing: all of them.
using Noeuds = std::optional<std::vector<std::int32_t>>;

// Shows the state's node list, or some of it. An index carries the number of its node; no text is copied, so a filling
// costs the view nothing until rows are painted.
class ModeleArbre final : public QAbstractItemModel {
    Q_OBJECT
  public:
    enum Role { EstGroupe = Qt::UserRole, NombreDEnfants, Lettres, Marques };  // the last: a browse::MarquesFilm
    // Letters to be marked in a row's text without the blanks around it: where they begin, and their number.
    using Plages = QList<std::pair<qsizetype, qsizetype>>;

    explicit ModeleArbre(browse::VueArbre& etat, QObject* parent = nullptr);

    // Follows a new filling of the list, of which these nodes are shown; or ticks that the program changed.
    void recommence(Noeuds noeuds);
    void coches();
    void textes();  // those of the headings
    [[nodiscard]] browse::VueArbre& etat() const { return m_etat; }
    // What is asked of a film when its row is painted or read out.
    void marquePar(std::function<Plages(const QString& titre)> lettres) { m_lettres = std::move(lettres); }
    void regardePar(std::function<browse::MarquesFilm(int)> marques, std::function<QString(int)> infobulle) {
        m_marques = std::move(marques);
        m_infobulle = std::move(infobulle);
    }

    [[nodiscard]] bool estFiltre() const { return m_vus.has_value(); }
    [[nodiscard]] bool estVu(int indice) const;
    [[nodiscard]] int premierFilm() const;  // of those shown, 0: none is

    [[nodiscard]] QModelIndex indexDuNoeud(int indice) const;
    [[nodiscard]] static int noeud(const QModelIndex& index) { return static_cast<int>(index.internalId()); }

    QModelIndex index(int ligne, int colonne, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& enfant) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& valeur, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  signals:
    void coche(int indice, bool cochee);  // the user's tick

  private:
    [[nodiscard]] std::span<const std::int32_t> enfantsVus(int indice) const;  // while it is filtered
    [[nodiscard]] std::size_t nombre(int indice) const;                        // of children shown
    [[nodiscard]] int enfant(int indice, std::size_t ligne) const;
    [[nodiscard]] int rang(int indice) const;
    [[nodiscard]] QVariant duFilm(int indice, int role) const;
    void numerote();

    browse::VueArbre& m_etat;
    std::function<Plages(const QString&)> m_lettres;
    std::function<browse::MarquesFilm(int)> m_marques;
    std::function<QString(int)> m_infobulle;
    Noeuds m_vus;
    // Of those: the ones at the root, with the place of the first of their films in m_vus, and each node's row; -1 is hidden.
    std::vector<std::int32_t> m_racines;
    std::vector<std::size_t> m_debuts;
    std::vector<std::int32_t> m_rangs;
};

}  // namespace ui
