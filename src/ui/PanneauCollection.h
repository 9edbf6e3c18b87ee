#pragma once

#include "ui/Atelier.h"

#include <QWidget>
#include <array>

class QStackedWidget;

namespace ui {

class PageCollection;

// What looks at the collection as a whole: one page at a time under its tabs, built when it is first shown and kept from
// then on. The page of the posters is the one that the window has beside the list anyway (ui/PageGroupe), below.
class PanneauCollection final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauCollection(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    void compose();
    void suis();
    [[nodiscard]] PageCollection* page();

    const Atelier m_atelier;
    QStackedWidget* m_pages = nullptr;
    QWidget* m_dernierOnglet = nullptr;  // before the pages
    std::array<PageCollection*, app::kPagesDeCollection> m_construites{};
};

}  // namespace ui
