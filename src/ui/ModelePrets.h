#pragma once

#include "ensemble/Prets.h"
#include "ui/ModeleDeLignes.h"

namespace ui {

// Loans, or reservations, as the rows of a table; a heading that has an order sorts them.
class ModelePrets final : public ModeleDeLignes {
    Q_OBJECT
  public:
    enum class Sorte { Prets, Reservations };
    enum Role { EnRetard = Qt::UserRole };

    explicit ModelePrets(Sorte sorte, QObject* parent = nullptr);

    void remplit(std::vector<ensemble::Pret> prets, int joursDeRetard);
    void metRetard(int jours);
    [[nodiscard]] const ensemble::Pret& pret(int ligne) const { return m_prets.at(static_cast<std::size_t>(ligne)); }
    [[nodiscard]] const std::vector<ensemble::Pret>& prets() const { return m_prets; }
    [[nodiscard]] bool colonneVide(int colonne) const;  // it says nothing of any row
    [[nodiscard]] int colonneDesJours() const { return m_sorte == Sorte::Prets ? 2 : -1; }
    [[nodiscard]] bool triable(int colonne) const;
    [[nodiscard]] int colonneTriee() const { return m_colonne; }
    [[nodiscard]] Qt::SortOrder ordre() const { return m_ordre; }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;
    void sort(int colonne, Qt::SortOrder ordre) override;

  private:
    struct Colonne;
    [[nodiscard]] static const std::vector<Colonne>& colonnesDe(Sorte sorte);
    [[nodiscard]] static QStringList titres(Sorte sorte);
    [[nodiscard]] const Colonne& colonne(int rang) const;
    [[nodiscard]] int nombre() const override { return static_cast<int>(m_prets.size()); }
    [[nodiscard]] Cellule cellule(int rang, int colonne) const override;
    [[nodiscard]] QVariant autreDonnee(const QModelIndex& index, int role) const override;
    [[nodiscard]] bool estEnRetard(int rang) const;
    [[nodiscard]] QString ligneEntiere(const ensemble::Pret& pret) const;
    void trie();

    const Sorte m_sorte;
    std::vector<ensemble::Pret> m_prets;
    int m_joursDeRetard = ensemble::kJoursDeRetard;
    int m_colonne = 1;
    Qt::SortOrder m_ordre = Qt::AscendingOrder;
};

}  // namespace ui
