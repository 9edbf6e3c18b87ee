#pragma once

#include "browse/EtatFiche.h"
#include "platform/dialogues/Dialogues.h"

#include <cstddef>

namespace edit {

// The user's gestures in the holdings part of the sheet: each makes the validate button visible, and nothing is written
// before that one is pressed.
class SaisiePossession {
  public:
    SaisiePossession(browse::EtatFiche& fiche, dialogues::Dialogues& dialogues)
        : m_fiche(fiche), m_dialogues(dialogues) {}

    void Option1_Click();  // owned or not, as Option1 tells after the click
    void Combo7_Change();
    void Text10_Change();
    // Chooses the attached file of a slot, 0 to 2; the file is neither copied nor checked.
    void Command2_Click(std::size_t indice);

  private:
    void attendValidation() { m_fiche.cmdValiderInfosPossessions.Visible = true; }

    browse::EtatFiche& m_fiche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
