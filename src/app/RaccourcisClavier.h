#pragma once

#include "app/ChoixFonction.h"
#include "browse/AfficheVolet.h"
#include "browse/FilmCourant.h"
#include "edit/cmdModifierTitre_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"

#include <string>
#include <vector>

namespace app {

// What keys do beside the buttons. They act on what is seen: a film whose sheet is hidden is neither corrected nor
// deleted, and no key throws away a text that was typed and not stored without asking.
class RaccourcisClavier {
  public:
    struct Montre {
        EtatFonctions& fonctions;
        browse::EtatPanneaux& panneaux;
        browse::EtatFiche& fiche;
        edit::EtatAjout& ajout;
        const browse::FilmCourant& film;
        ecran::Demandes& demandes;
    };
    struct Gestes {
        edit::VoletAjout& volet;
        edit::ModesAjout& modes;
        edit::cmdModifierTitre_Click& modifie;
        edit::SuppressionTitre& supprime;
        browse::AfficheVolet& afficheVolet;
        browse::AfficheAccueil& afficheAccueil;
    };
    RaccourcisClavier(const Montre& montre, const Gestes& gestes, dialogues::Dialogues& dialogues)
        : m_montre(montre), m_gestes(gestes), m_dialogues(dialogues) {}

    void QuittePanneau();   // back to the sheet of the current film, else to the presentation
    void SaisieManuelle();  // the page of manual entry; one already begun is taken up again
    void ModifieFilmAffiche();
    void SupprimeFilmAffiche();
    // The page of entry holds nothing that would be lost: it was just filled, or just stored.
    void retientSaisie() { m_saisieRetenue = textesSaisis(); }

  private:
    [[nodiscard]] std::vector<std::string> textesSaisis() const;
    [[nodiscard]] bool saisieMontree() const;
    [[nodiscard]] bool saisieEnSuspens() const { return textesSaisis() != m_saisieRetenue; }
    [[nodiscard]] bool laisseLaSaisie();

    Montre m_montre;
    Gestes m_gestes;
    dialogues::Dialogues& m_dialogues;
    std::vector<std::string> m_saisieRetenue = textesSaisis();
};

}  // namespace app
