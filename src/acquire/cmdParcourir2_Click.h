#pragma once

#include "edit/EtatAjout.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace acquire {

// Chooses the folder to import from, and says how many sheets it holds.
class ChoixDossierFiches {
  public:
    ChoixDossierFiches(edit::EtatAjout& ajout, dialogues::Dialogues& dialogues)
        : m_ajout(ajout), m_dialogues(dialogues) {}

    void cmdParcourir2_Click();  // a cancelled choice changes nothing

  private:
    edit::EtatAjout& m_ajout;
    dialogues::Dialogues& m_dialogues;
};

[[nodiscard]] std::string texteNombreDeFiches(long nombre);

}  // namespace acquire
