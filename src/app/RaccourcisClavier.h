#pragma once

#include "app/Saisies.h"
#include "browse/AfficheAccueil.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifierTitre_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"

#include <string>

namespace app {

// What keys do beside the buttons. They act on what is seen: a film whose sheet is hidden is neither corrected nor
// deleted, and no key throws away a text that was typed and not stored without asking.
class RaccourcisClavier {
  public:
    struct Montre {
        browse::EtatPanneaux& panneaux;
        browse::EtatFiche& fiche;
        edit::EtatAjout& ajout;
        const browse::FilmCourant& film;
        ecran::Demandes& demandes;
    };
    struct Gestes {
        Saisies& saisies;
        edit::VoletAjout& volet;
        edit::ModesAjout& modes;
        edit::cmdAjoutFilm_Click& ajoute;
        edit::cmdModifierTitre_Click& modifie;
        edit::SuppressionTitre& supprime;
        edit::cmdValiderInfosPossessions_Click& valide;
        browse::AfficheVolet& afficheVolet;
        browse::AfficheAccueil& afficheAccueil;
    };
    RaccourcisClavier(const Montre& montre, const Gestes& gestes) : m_montre(montre), m_gestes(gestes) {}

    void QuittePanneau();   // back to the sheet of the current film, else to the presentation; from there to the list
    void SaisieManuelle();  // the page of manual entry; one already begun is taken up again
    void Modifie();         // the page that corrects the current film
    void ModifieFilmAffiche();
    void SupprimeFilmAffiche();
    void Valide();  // stores what is being typed: the page of entry, or the holdings of the film shown

  private:
    Montre m_montre;
    Gestes m_gestes;
};

[[nodiscard]] std::string texteTouches();  // the keys of the window, told to the user

}  // namespace app
