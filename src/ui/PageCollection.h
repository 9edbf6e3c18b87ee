#pragma once

#include "ui/Atelier.h"

#include <QWidget>

class QBoxLayout;

namespace ui {

class Etiquette;

// One page about the collection as a whole. While it is shown it follows the base and the listing: what it shows is read
// again once they changed, between two commands. What takes long is read by a command of its own, at the user's wish.
class PageCollection : public QWidget {
    Q_OBJECT
  public:
    PageCollection(const Atelier& atelier, const char* nom, const QString& titre, const QString& aide);

    // The page is shown, or a command ended while it is.
    void suis();

  protected:
    // The base and the listing as they were read, to tell whether they changed since.
    struct Lecture {
        dao::Database::Changements changements;
        int listing = 0;
        [[nodiscard]] static Lecture de(const app::Contexte& c) {
            return {c.base.base.changements(), c.liste.TreeView1.Nodes.generation()};
        }
        friend bool operator==(const Lecture&, const Lecture&) = default;
    };
    [[nodiscard]] const Atelier& atelier() const { return m_atelier; }
    [[nodiscard]] QBoxLayout* contenu() const { return m_contenu; }  // below the title and its help line
    void perime() { m_lu.reset(); }                                  // read again at the next look
    // Reads what is shown, and shows it. What it throws is told on the page.
    virtual void relis(const app::Contexte& c) = 0;
    // Instead of what cannot be read; "" when it can.
    void ditPourquoi(const QString& raison);

  private:
    void relisSiPerimee();

    const Atelier m_atelier;
    QBoxLayout* m_contenu = nullptr;
    Etiquette* m_raison = nullptr;
    std::optional<Lecture> m_lu;
};

}  // namespace ui
