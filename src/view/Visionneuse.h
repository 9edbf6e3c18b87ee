#pragma once

#include "browse/SuiviAffiche.h"
#include "db/Chemins.h"
#include "view/EtatAffiche.h"

#include <cstdint>
#include <string>

namespace view {

// The poster viewer as a window: shown, hidden, sized to its picture, scrolled.
class Visionneuse final : public browse::SuiviAffiche {
  public:
    Visionneuse(EtatAffiche& etat, const db::Chemins& chemins) : m_etat(etat), m_chemins(chemins) {}

    void montre();
    void cache() { m_etat.Visible = false; }
    [[nodiscard]] bool estVide() const { return m_etat.Picture1.vide; }
    [[nodiscard]] bool montreTout() const { return m_etat.imageEntiere(); }

    // The window takes the picture's size as far as the screen allows, and shows its top.
    void afficheChargee(const std::optional<ecran::TailleImage>& taille) override;
    // The inside of the window is now of that size, in twips.
    void Form_Resize(int largeur, int hauteur);
    void HScroll1_Change();
    // Larger by so many steps, or smaller below zero; 0 is the picture's own size again. What is at that point of the
    // window, in twips, stays there as far as the picture's edges allow.
    void zoome(int crans, int x, int y);
    // Moves the picture by so much, in twips, as far as there is something to uncover; the scroll bar follows.
    void deplace(int dx, int dy);

  private:
    void dimensionne();
    void metLaTaille();
    void metLaPage();
    void centre();
    void retient(int gauche, int haut, int plusHaut);

    EtatAffiche& m_etat;
    const db::Chemins& m_chemins;
    ecran::TailleImage m_taille;  // of the current picture
    std::int64_t m_octets = 0;    // of its file
};

// "600 × 900 pixels · 84 Ko", and the zoom where it is not 100 %.
[[nodiscard]] std::string texteTaille(const ecran::TailleImage& taille, std::int64_t octets, int zoom);

}  // namespace view
