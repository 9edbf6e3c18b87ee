#pragma once

#include "db/CleFilm.h"
#include "ui/Atelier.h"

#include <QObject>
#include <string>
#include <vector>

class QDropEvent;

namespace ui {

// What is dropped on the window: sheets or a folder of them are imported, a picture on the poster becomes the film's, a
// file on a box of an attached file fills it, another program's collection is shown before it is imported. Anything else
// is refused while it is still in the air.
class Depot final : public QObject {
    Q_OBJECT
  public:
    Depot(const Atelier& atelier, QWidget* fenetre);
    // Fields would take a file for a text, its address; the boxes of the attached files no text of a link either.
    void prepare(QWidget* fenetre);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    enum class Sorte { Rien, Fiches, Affiche, Fichier, Collection };
    struct Cible {
        Sorte sorte = Sorte::Rien;
        int indice = 0;      // of the attached file
        db::CleFilm film{};  // that was on the sheet
    };
    [[nodiscard]] Cible cible(const QDropEvent& evenement) const;
    void recois(const QDropEvent& evenement) const;
    void sers(const Cible& ou, const std::vector<std::string>& chemins) const;
    [[nodiscard]] db::CleFilm filmMontre() const;

    const Atelier m_atelier;
    QWidget* m_fenetre;
};

}  // namespace ui
