#pragma once

#include "rapatrix/PageWeb.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringList>

namespace rapatrix {

// The films found, one a row with a box to tick, what became of each beside it.
class ListeFiches final : public QStandardItemModel {
    Q_OBJECT
  public:
    enum Colonne { Film, Etat, NombreDeColonnes };

    // The numbers of the columns shown and downloaded: 1 is the address, 2 its text.
    ListeFiches(int affichee, int telechargee, QObject* parent = nullptr);

    void ajoute(const std::vector<Lien>& fiches);
    void vide();
    [[nodiscard]] QStringList cochees() const;  // addresses, in the list's order
    void note(const QString& adresse, const QString& etat);
    void retire(const QString& adresse);
    void decoche(const QString& adresse);

  private:
    [[nodiscard]] int rangDe(const QString& adresse) const;  // -1: not there

    int m_affichee, m_telechargee;
};

// Its rows by what is typed, whatever the case and the accents.
class FiltreFiches final : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    explicit FiltreFiches(QObject* parent = nullptr);
    void filtre(const QString& mots);
    void coche(bool coche);  // what is seen

  protected:
    [[nodiscard]] bool filterAcceptsRow(int rang, const QModelIndex& parent) const override;

  private:
    QStringList m_mots;
};

}  // namespace rapatrix
