#pragma once

#include "ensemble/PairesAVoir.h"
#include "ui/LigneDExamen.h"
#include "ui/PageCollection.h"

class QAbstractButton;
class QSplitter;
class QTreeView;

namespace ui {

class Comparaison;
class ModelePaires;

// The films that resemble each other, once the user asks for them: pair by pair, the closest first, side by side, and what
// can be done with the two.
class PageDoublons final : public PageCollection {
    Q_OBJECT
  public:
    explicit PageDoublons(const Atelier& atelier);

  protected:
    void relis(const app::Contexte& c) override;

  private:
    [[nodiscard]] QWidget* comparaison();
    [[nodiscard]] QLayout* boutons();
    void cherche();
    void montre(bool perime);
    void change();
    void relisLaPaire(const app::Contexte& c);
    [[nodiscard]] const ensemble::Paire* choisie() const;
    void laisse();
    void voit(bool droite);
    void supprime(bool droite);
    void fusionne();

    // What the comparison shows: nothing is read again, and no choice lost, as long as it is the same.
    struct Montree {
        ensemble::Paire paire;
        bool tournee = false;
        BaseLue base;
        friend bool operator==(const Montree&, const Montree&) = default;
    };

    ensemble::PairesAVoir m_paires;
    LigneDExamen* m_ligne = nullptr;
    Etiquette *m_invite = nullptr, *m_scores = nullptr;
    ModelePaires* m_modele = nullptr;
    QTreeView* m_vue = nullptr;
    QSplitter* m_partage = nullptr;
    QWidget* m_dessous = nullptr;
    Comparaison* m_comparaison = nullptr;
    QAbstractButton *m_tourner = nullptr, *m_voirDroite = nullptr, *m_supprimerGauche = nullptr,
                    *m_supprimerDroite = nullptr;
    bool m_tournee = false;             // the right one of the pair is shown on the left, and stays
    std::optional<BaseLue> m_lue;       // when the pairs were last looked over
    std::optional<BaseLue> m_cherchee;  // when they were searched
    std::optional<Montree> m_montree;
};

}  // namespace ui
