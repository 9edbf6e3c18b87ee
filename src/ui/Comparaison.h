#pragma once

#include "ui/ModeleComparaison.h"

#include <QTimer>
#include <QWidget>
#include <array>

class QTreeView;

namespace ui {

class Vignette;

// Two films side by side: their posters, and between them their fields, what differs marked. A click on a value, or the
// Space bar, says which one is to stay.
class Comparaison final : public QWidget {
    Q_OBJECT
  public:
    explicit Comparaison(QWidget* parent = nullptr);

    // To be looked at only, under these headings; without the first one, the right film alone.
    void metEnLecture(const QString& gauche, const QString& droite);
    void montre(ensemble::PlanDeFusion plan, std::array<QByteArray, 2> affiches);
    [[nodiscard]] const ensemble::PlanDeFusion& plan() const { return m_modele->plan(); }

  signals:
    void demandee(bool droite);  // the sheet of that film

  protected:
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void decode();

    ModeleComparaison* m_modele;
    QTreeView* m_champs;
    std::array<Vignette*, 2> m_vignettes{};
    std::array<QByteArray, 2> m_affiches;
    QTimer m_repos;
};

}  // namespace ui
