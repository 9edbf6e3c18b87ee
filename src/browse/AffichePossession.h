#pragma once

#include "browse/EtatFiche.h"
#include "browse/FilmCourant.h"
#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"

namespace browse {

// The holdings frame and the refresh button go with ownership as Option1 tells it: what a click on Option1 does beside
// showing the validate button, and what every program write to Option1 must do too.
void montrePossession(EtatFiche& fiche);

// Fills the holdings part of the sheet for the current film, and what the film remembers of its attached files.
class AffichePossession {
  public:
    AffichePossession(db::Base& base, EtatFiche& fiche, FilmCourant& film, dialogues::Dialogues& dialogues)
        : m_base(base), m_fiche(fiche), m_film(film), m_dialogues(dialogues) {}

    // Throws db::RequeteEchouee after its message.
    void operator()();

  private:
    void retientLesFichiers();
    void nommeLesFichiers();

    db::Base& m_base;
    EtatFiche& m_fiche;
    FilmCourant& m_film;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
