#pragma once

#include "ensemble/QueRegarder.h"
#include "ui/PageCollection.h"

#include <optional>

class QComboBox;
class QPushButton;

namespace ui {

class Etiquette;
class Vignette;

// One film to watch tonight, and another, and another.
class PageCeSoir final : public PageCollection {
    Q_OBJECT
  public:
    explicit PageCeSoir(const Atelier& atelier);

  protected:
    void relis(const app::Contexte& c) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    [[nodiscard]] QLayout* envies();
    [[nodiscard]] QLayout* proposition();
    void tire(const app::Contexte& c);
    void propose(const app::Contexte& c);

    QComboBox *m_duree = nullptr, *m_genre = nullptr, *m_note = nullptr;
    Etiquette *m_nombre = nullptr, *m_titre = nullptr, *m_texte = nullptr;
    Vignette* m_affiche = nullptr;
    QPushButton *m_autre = nullptr, *m_fiche = nullptr;
    std::optional<ensemble::QueRegarder> m_tirage;
    std::optional<ensemble::FilmPropose> m_film;
};

}  // namespace ui
