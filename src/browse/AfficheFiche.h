#pragma once

#include "browse/AfficheAccueil.h"
#include "browse/AffichePossession.h"
#include "browse/AfficheTemporaire.h"
#include "browse/AfficheVolet.h"
#include "browse/EtatListe.h"
#include "browse/ModifieNoteFilm.h"

#include <string>

namespace browse {

// Shows the sheet of the tree's selected node and makes its film the current one. A heading, no selection, and a film
// deleted meanwhile show the presentation instead.
class AfficheFiche {
  public:
    AfficheFiche(db::Base& base, EtatListe& liste, EtatFiche& fiche, EtatPanneaux& panneaux, FilmCourant& film,
                 ecran::Images& images, AfficheTemporaire& afficheTemporaire, AffichePossession& affichePossession,
                 ModifieNoteFilm& modifieNoteFilm, AfficheAccueil& afficheAccueil, AfficheVolet& afficheVolet)
        : m_base(base),
          m_liste(liste),
          m_fiche(fiche),
          m_panneaux(panneaux),
          m_film(film),
          m_images(images),
          m_afficheTemporaire(afficheTemporaire),
          m_affichePossession(affichePossession),
          m_modifieNoteFilm(modifieNoteFilm),
          m_afficheAccueil(afficheAccueil),
          m_afficheVolet(afficheVolet) {}

    // Throws db::RequeteEchouee after its message, or dao::ErreurDao; the presentation is shown then.
    void operator()();

  private:
    void remplit(std::uint32_t position);
    void remplitGeneralites();
    void remplitNote();
    void videImages();
    void abandonne();

    db::Base& m_base;
    EtatListe& m_liste;
    EtatFiche& m_fiche;
    EtatPanneaux& m_panneaux;
    FilmCourant& m_film;
    ecran::Images& m_images;
    AfficheTemporaire& m_afficheTemporaire;
    AffichePossession& m_affichePossession;
    ModifieNoteFilm& m_modifieNoteFilm;
    AfficheAccueil& m_afficheAccueil;
    AfficheVolet& m_afficheVolet;
};

}  // namespace browse
