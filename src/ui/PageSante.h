#pragma once

#include "ui/LigneDExamen.h"
#include "ui/ModeleSante.h"
#include "ui/PageCollection.h"

class QTreeView;

namespace ui {

// What the base lacks, and what leads nowhere, once the user asks for it; what can be mended at once, kind by kind.
class PageSante final : public PageCollection {
    Q_OBJECT
  public:
    explicit PageSante(const Atelier& atelier);

  protected:
    void relis(const app::Contexte& c) override;

  private:
    void examine();
    void montre(bool perime);
    void poseLesBoutons();
    void active(const QModelIndex& index);
    void repare(ensemble::Mal mal);

    LigneDExamen* m_ligne = nullptr;
    Etiquette* m_invite = nullptr;
    ModeleSante* m_modele = nullptr;
    QTreeView* m_vue = nullptr;
    std::optional<BaseLue> m_examinee;
};

}  // namespace ui
