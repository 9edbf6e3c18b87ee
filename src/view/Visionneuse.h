#pragma once

#include "browse/SuiviAffiche.h"
#include "db/Chemins.h"
#include "view/EtatAffiche.h"

namespace view {

// The poster viewer as a window: shown, hidden, sized to its picture, scrolled.
class Visionneuse final : public browse::SuiviAffiche {
  public:
    Visionneuse(EtatAffiche& etat, const db::Chemins& chemins) : m_etat(etat), m_chemins(chemins) {}

    void montre();
    void cache() { m_etat.Visible = false; }

    // The window takes the picture's size as far as the screen allows, and shows its top.
    void afficheChargee(const std::optional<ecran::TailleImage>& taille) override;
    // The inside of the window is now of that size, in twips.
    void Form_Resize(int largeur, int hauteur);
    void HScroll1_Change();
    // Moves the picture by so much, in twips, as far as there is something to uncover; the scroll bar follows.
    void deplace(int dx, int dy);

  private:
    void dimensionne();
    void centre();

    EtatAffiche& m_etat;
    const db::Chemins& m_chemins;
};

}  // namespace view
