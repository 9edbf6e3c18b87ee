#pragma once

#include "browse/EtatFiche.h"
#include "browse/FilmCourant.h"
#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"

namespace browse {

// Stores the current film's rating, 0 for none, and shows it.
class ModifieNoteFilm {
  public:
    ModifieNoteFilm(db::Base& base, EtatFiche& fiche, const FilmCourant& film, dialogues::Dialogues& dialogues)
        : m_base(base), m_fiche(fiche), m_film(film), m_dialogues(dialogues) {}

    // Throws db::RequeteEchouee after its message, or dao::ErreurDao when the row cannot be written.
    void operator()(int note);

  private:
    db::Base& m_base;
    EtatFiche& m_fiche;
    const FilmCourant& m_film;
    dialogues::Dialogues& m_dialogues;
};

// What the rating label reads: "Note : 8/10" from 1 to 10, else "Pas de notation".
[[nodiscard]] std::string texteDeLaNote(double note);

}  // namespace browse
