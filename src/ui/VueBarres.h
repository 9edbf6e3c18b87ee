#pragma once

#include "ui/DessinDiagramme.h"

#include <QAbstractListModel>
#include <QListView>

namespace ui {

// A diagram's bars, each told as "Drame : 26 (5,2 %)".
class ModeleBarres final : public QAbstractListModel {
    Q_OBJECT
  public:
    using QAbstractListModel::QAbstractListModel;
    void montre(const ensemble::Diagramme* diagramme);  // which stays until the next one; nullptr: none
    [[nodiscard]] const ensemble::Diagramme* diagramme() const { return m_diagramme; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const ensemble::Diagramme* m_diagramme = nullptr;
};

// A diagram on the screen: one stop of the keyboard, in which the arrows and the first letters go from bar to bar.
class VueBarres final : public QListView {
    Q_OBJECT
  public:
    explicit VueBarres(const char* nom);
    void montre(const ensemble::Diagramme* diagramme);  // as above
    [[nodiscard]] MesuresDeBarres mesures() const { return m_mesures; }
    [[nodiscard]] const ensemble::Diagramme* diagramme() const { return m_modele.diagramme(); }

  signals:
    void barreChoisie(int rang);  // by a click, Enter or the space bar

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void mesure();

    struct Place {
        std::string titre;  // of the diagram
        int rang = 0, hauteur = 0;
    };
    ModeleBarres m_modele;
    Place m_quittee;
    MesuresDeBarres m_mesures;
};

}  // namespace ui
