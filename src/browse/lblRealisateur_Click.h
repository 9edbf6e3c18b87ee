#pragma once

#include "browse/FilmCourant.h"
#include "browse/cmdFonctionRecherche_Click.h"
#include "browse/cmdRecherche_Click.h"

namespace browse {

// Searches the collection for the current film's director.
class lblRealisateur_Click {
  public:
    lblRealisateur_Click(const FilmCourant& film, EtatRecherche& recherche,
                         cmdFonctionRecherche_Click& cmdFonctionRecherche, cmdRecherche_Click& cmdRecherche)
        : m_film(film),
          m_recherche(recherche),
          m_cmdFonctionRecherche(cmdFonctionRecherche),
          m_cmdRecherche(cmdRecherche) {}

    void operator()();

  private:
    const FilmCourant& m_film;
    EtatRecherche& m_recherche;
    cmdFonctionRecherche_Click& m_cmdFonctionRecherche;
    cmdRecherche_Click& m_cmdRecherche;
};

}  // namespace browse
