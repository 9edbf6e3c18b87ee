#pragma once

#include "browse/AfficheFiche.h"
#include "view/Visionneuse.h"

namespace view {

// The keys of the viewer (codes as in Windows), and the step to the next or previous title of the tree.
class TouchesAffiche {
  public:
    TouchesAffiche(Visionneuse& visionneuse, browse::EtatListe& liste, const browse::FilmCourant& film,
                   browse::AfficheFiche& afficheFiche, ecran::Demandes& demandes)
        : m_visionneuse(visionneuse),
          m_liste(liste),
          m_film(film),
          m_afficheFiche(afficheFiche),
          m_demandes(demandes) {}

    void Picture1_KeyDown(int code);
    void HScroll1_KeyDown(int code);
    void Form_KeyDown(int code);

  private:
    void titreSuivant();
    void titrePrecedent();
    void montreTitre(int indice);

    Visionneuse& m_visionneuse;
    browse::EtatListe& m_liste;
    const browse::FilmCourant& m_film;
    browse::AfficheFiche& m_afficheFiche;
    ecran::Demandes& m_demandes;
};

}  // namespace view
