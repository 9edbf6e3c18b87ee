#pragma once

#include "ui/Atelier.h"

#include <QWidget>

namespace ui {

class BoutonAccent;
class Etiquette;

// The base as a page read it, to tell whether it changed since.
struct BaseLue {
    std::string chemin;
    dao::Database::Changements changements;
    [[nodiscard]] static BaseLue de(const app::Contexte& c) { return {c.chemins.base, c.base.base.changements()}; }
    friend bool operator==(const BaseLue&, const BaseLue&) = default;
};

// What begins a long reading of the base at the user's wish, what it found in a sentence, and whether that still holds.
class LigneDExamen final : public QWidget {
    Q_OBJECT
  public:
    struct Textes {
        QString commencer, recommencer, infobulle, perime;
    };
    // The button is named cmd<nom>, the texts lblBilan<nom> and lblPerime<nom>.
    LigneDExamen(const std::string& nom, Textes textes);

    void rienDeLu();
    void lu(const std::string& bilan, bool perime);

  signals:
    void demande();

  private:
    const Textes m_textes;
    BoutonAccent* m_bouton;
    Etiquette *m_bilan, *m_perime;
};

}  // namespace ui
