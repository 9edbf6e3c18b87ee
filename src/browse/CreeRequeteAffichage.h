#pragma once

#include "browse/AfficheTitres.h"
#include "browse/FilmCourant.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace browse {

// Rebuilds the listing and the tree. No film is current afterwards: who wants the same film again copies its title and
// director first and gives them to SelectionneTitre.
class CreeRequeteAffichage {
  public:
    CreeRequeteAffichage(db::Base& base, EtatListe& liste, FilmCourant& film, AfficheTitres& afficheTitres,
                         dialogues::Dialogues& dialogues)
        : m_base(base), m_liste(liste), m_film(film), m_afficheTitres(afficheTitres), m_dialogues(dialogues) {}

    // A zone of -1 or a sort outside the list does nothing; 6 is the saved search zone. Throws db::RequeteEchouee after
    // its message when the listing cannot be made: listing and tree stay as they were.
    void operator()(int zone, int tri, const std::string& condition = "");

    // The listing of the zone and sort shown, without a search, over another base than the one the tree was filled
    // from: whatever comes of it, no node of the old base is left.
    void apresChangementDeBase();

  private:
    void oublieLeFilmCourant();

    db::Base& m_base;
    EtatListe& m_liste;
    FilmCourant& m_film;
    AfficheTitres& m_afficheTitres;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
