#pragma once

#include "browse/EtatListe.h"
#include "browse/FilmCourant.h"
#include "browse/ModifieNoteFilm.h"
#include "edit/SuitesModification.h"
#include "platform/dialogues/Dialogues.h"

#include <optional>
#include <string>
#include <string_view>

namespace edit {

// Asks for the current film's rating and stores it.
class Notation {
  public:
    Notation(const browse::EtatListe& liste, const browse::FilmCourant& film, browse::ModifieNoteFilm& modifieNoteFilm,
             const SuitesModification& suites, dialogues::Dialogues& dialogues)
        : m_liste(liste), m_film(film), m_modifieNoteFilm(modifieNoteFilm), m_suites(suites), m_dialogues(dialogues) {}

    // Nothing happens without a current film. Throws as ModifieNoteFilm does.
    void cmdModifieNote_Click();

  private:
    const browse::EtatListe& m_liste;
    const browse::FilmCourant& m_film;
    browse::ModifieNoteFilm& m_modifieNoteFilm;
    SuitesModification m_suites;
    dialogues::Dialogues& m_dialogues;
};

// The rating an answer asks for: 0, none, for an empty one; nothing when it is not from 1 to 10. A comma is a point.
[[nodiscard]] std::optional<int> noteDemandee(std::string_view reponse);

}  // namespace edit
