#pragma once

#include "browse/EtatListe.h"

#include <QAbstractItemModel>

namespace ui {

// Shows the state's node list. An index carries the number of its node; nothing is copied, so a filling costs the view
// nothing until rows are painted.
class ModeleArbre final : public QAbstractItemModel {
    Q_OBJECT
  public:
    enum Role { EstGroupe = Qt::UserRole, NombreDEnfants };

    explicit ModeleArbre(browse::VueArbre& etat, QObject* parent = nullptr);

    // Follows a new filling of the list, or ticks that the program changed.
    void recommence();
    void coches();
    void textes();  // those of the headings
    [[nodiscard]] browse::VueArbre& etat() { return m_etat; }

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

  signals:
    void coche(int indice, bool cochee);  // the user's tick

  private:
    browse::VueArbre& m_etat;
};

}  // namespace ui
