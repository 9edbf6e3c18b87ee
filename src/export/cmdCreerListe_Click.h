#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "export/CreeFichierRTF.h"
#include "export/DernierExport.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"
#include "view/LanceFichier.h"

#include <optional>
#include <string>

namespace exportation {

// Writes the list of the owned titles, as plain text here or as an RTF document by CreeFichierRTF, and opens it.
//
// The text list is written whole or not at all: stopped by the user, or where it cannot be written, the command ends
// without a word and what stood there still stands.
class cmdCreerListe_Click {
  public:
    struct Outils {
        db::Base& base;
        const db::Chemins& chemins;
        dialogues::Dialogues& dialogues;
        ecran::Ecran& ecran;
        ecran::Progression& progression;
    };

    cmdCreerListe_Click(const Outils& outils, CreeFichierRTF& creeFichierRTF, DernierExport& dernierExport,
                        view::LanceFichier& lanceFichier)
        : m_outils(outils),
          m_creeFichierRTF(creeFichierRTF),
          m_dernierExport(dernierExport),
          m_lanceFichier(lanceFichier) {}

    // Throws db::RequeteEchouee when the listing cannot be opened, dao::ErreurDao when it cannot be read.
    void operator()();

  private:
    void creeFichierTexte(const std::string& clause, bool parGenre);
    [[nodiscard]] std::optional<std::string> texte(dao::Recordset& titres, bool parGenre);  // none: the user stopped

    Outils m_outils;
    CreeFichierRTF& m_creeFichierRTF;
    DernierExport& m_dernierExport;
    view::LanceFichier& m_lanceFichier;
};

}  // namespace exportation
