#pragma once

#include "edit/FilmExamine.h"
#include "ui/ModeleDeLignes.h"

#include <QSortFilterProxyModel>
#include <vector>

namespace ui {

// The films that an import would bring, and which of them are ticked: at first all that are new, and those that it can
// complete. Films that it can do nothing with cannot be ticked.
class ModeleExamen final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum Colonne { Film, Realisateur, Annee, Sort, Affiche, Provenance };
    enum Role { kOrdre = Qt::UserRole };  // what a column is sorted by

    ModeleExamen(std::vector<edit::FilmExamine> films, const QString& provenance);

    [[nodiscard]] const std::vector<edit::FilmExamine>& films() const { return m_films; }
    [[nodiscard]] const edit::FilmExamine& film(int rang) const { return m_films[static_cast<std::size_t>(rang)]; }
    // The ticked ones that can be added, or completed.
    [[nodiscard]] std::vector<std::size_t> aAjouter() const { return cochees(edit::peutEtreAjoute); }
    [[nodiscard]] std::vector<std::size_t> aCompleter() const { return cochees(edit::peutEtreComplete); }
    void coche(const std::vector<int>& rangs, bool cochee);
    [[nodiscard]] bool estCochee(int rang) const { return m_cochees[static_cast<std::size_t>(rang)]; }
    // They were: they lack nothing any more.
    void completees(const std::vector<std::size_t>& rangs);

  private:
    [[nodiscard]] int nombre() const override { return static_cast<int>(m_films.size()); }
    [[nodiscard]] Cellule cellule(int rang, int colonne) const override;
    [[nodiscard]] QVariant autreDonnee(const QModelIndex& index, int role) const override;
    [[nodiscard]] bool peutEtreCochee(int rang) const override;
    void coche(int rang, bool oui) override { coche(std::vector{rang}, oui); }
    [[nodiscard]] std::vector<std::size_t> cochees(bool (*convient)(const edit::FilmExamine&)) const;
    [[nodiscard]] QString texte(const edit::FilmExamine& film, int colonne) const;
    [[nodiscard]] QVariant ordre(const edit::FilmExamine& film, int colonne) const;
    [[nodiscard]] QString ligneEntiere(const edit::FilmExamine& film) const;

    std::vector<edit::FilmExamine> m_films;
    std::vector<bool> m_cochees;
};

// Those of one kind, in the order of a column.
class ExamenTrie final : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    ExamenTrie(ModeleExamen* modele, QObject* parent);

    void montreLeGenre(edit::GenreDExamen genre);

  protected:
    [[nodiscard]] bool filterAcceptsRow(int rang, const QModelIndex& parent) const override;

  private:
    const ModeleExamen& m_modele;
    edit::GenreDExamen m_genre = edit::GenreDExamen::Tous;
};

}  // namespace ui
