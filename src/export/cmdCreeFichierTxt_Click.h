#pragma once

#include "browse/EtatFiche.h"
#include "browse/FilmCourant.h"
#include "db/Chemins.h"
#include "export/DernierExport.h"
#include "platform/dialogues/Dialogues.h"

namespace exportation {

// Writes the sheet on the screen to a text file of the user's choice. The name proposed is the title as it stands, with
// signs that the system may refuse; a file that cannot be written brings no box, and leaves what stood there.
class cmdCreeFichierTxt_Click {
  public:
    cmdCreeFichierTxt_Click(const browse::FilmCourant& film, const browse::EtatFiche& fiche, const db::Chemins& chemins,
                            DernierExport& dernierExport, dialogues::Dialogues& dialogues)
        : m_film(film), m_fiche(fiche), m_chemins(chemins), m_dernierExport(dernierExport), m_dialogues(dialogues) {}

    void operator()();

  private:
    const browse::FilmCourant& m_film;
    const browse::EtatFiche& m_fiche;
    const db::Chemins& m_chemins;
    DernierExport& m_dernierExport;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace exportation
