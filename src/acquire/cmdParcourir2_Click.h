#pragma once

#include "db/Chemins.h"
#include "edit/EtatAjout.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace acquire {

// The folder to import from, chosen or typed, and how many sheets it holds.
class ChoixDossierFiches {
  public:
    ChoixDossierFiches(edit::EtatAjout& ajout, const db::Chemins& chemins, dialogues::Dialogues& dialogues)
        : m_ajout(ajout), m_chemins(chemins), m_dialogues(dialogues) {}

    void cmdParcourir2_Click();  // a cancelled choice changes nothing
    void txtCheminAjoutAuto_Change();
    // Before an import: a path of Windows leads nowhere here and opens the choice. False when it is still there then.
    [[nodiscard]] bool remplaceCheminWindows();

  private:
    edit::EtatAjout& m_ajout;
    const db::Chemins& m_chemins;
    dialogues::Dialogues& m_dialogues;
};

// The folder that txtCheminAjoutAuto names, from the root; empty for none.
[[nodiscard]] std::string dossierDesFiches(const edit::EtatAjout& ajout, const db::Chemins& chemins);
// Says how many sheets that folder holds; nothing where none is named.
void montreNombreDeFiches(edit::EtatAjout& ajout, const db::Chemins& chemins);

}  // namespace acquire
