#pragma once

#include "browse/AfficheAccueil.h"
#include "browse/AfficheNbTitres.h"
#include "browse/EtatFiche.h"
#include "browse/EtatListe.h"
#include "browse/FilmCourant.h"
#include "db/Base.h"
#include "edit/RaffraichitBoitesDeroulantes.h"
#include "platform/dialogues/Dialogues.h"

namespace edit {

// Deletes the current film, with its holding when the sheet shows it as owned. Poster files stay.
class SuppressionTitre {
  public:
    // How the deletion is shown.
    struct Suites {
        browse::EtatListe& liste;
        browse::AfficheAccueil& afficheAccueil;
        browse::AfficheNbTitres& afficheNbTitres;
        BoitesDeroulantes& boites;
    };

    SuppressionTitre(db::Base& base, const browse::EtatFiche& fiche, browse::FilmCourant& film, const Suites& suites,
                     dialogues::Dialogues& dialogues)
        : m_base(base), m_fiche(fiche), m_film(film), m_suites(suites), m_dialogues(dialogues) {}

    // Nothing happens without a current film. Throws db::RequeteEchouee after its message, or dao::ErreurDao; film and
    // holding are then both there still.
    void cmdSupprimerTitre_Click();
    void SupprFilm_Click() { cmdSupprimerTitre_Click(); }  // the tree's menu

  private:
    struct Supprimes {
        bool film = false;
        bool possession = false;
    };
    [[nodiscard]] Supprimes supprime();
    void retireDeLArbre();

    db::Base& m_base;
    const browse::EtatFiche& m_fiche;
    browse::FilmCourant& m_film;
    Suites m_suites;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
