#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "export/Avancement.h"
#include "export/DernierExport.h"
#include "export/EtatNom.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Ecran.h"
#include "platform/texteriche/TexteRiche.h"

#include <optional>
#include <string>

namespace view {
class LanceFichier;
}

namespace exportation {

// The list of the owned titles as an RTF document, then opened.
//
// The file is asked for first, and what stood there is replaced by the whole list or not at all: a list that cannot be
// written ends quietly, and so does one that the user stops. Meanwhile the two halves of the program's name show how far
// it is; they are the name again however it ends.
class CreeFichierRTF {
  public:
    CreeFichierRTF(db::Base& base, const db::Chemins& chemins, EtatNom& nom, ecran::Progression& progression,
                   ecran::Ecran& ecran, dialogues::Dialogues& dialogues, DernierExport& dernierExport,
                   view::LanceFichier& lanceFichier)
        : m_base(base),
          m_chemins(chemins),
          m_nom(nom),
          m_progression(progression),
          m_ecran(ecran),
          m_dialogues(dialogues),
          m_dernierExport(dernierExport),
          m_lance(lanceFichier) {}

    // `reponseTri`: kOui when the list is sorted by genre, whose headings it then has. Answers the file's path, "" when
    // none was made. Throws db::RequeteEchouee when the listing cannot be opened.
    std::string operator()(const std::string& clauseOrderBy, int reponseTri);

  private:
    [[nodiscard]] bool ecrit(const std::string& fichier, dao::Recordset& titres, bool parGenre);
    [[nodiscard]] std::optional<std::string> rassemble(dao::Recordset& titres, bool parGenre, Avancement& avancement);
    [[nodiscard]] std::optional<texteriche::TexteRiche> metEnForme(std::string texteBalise);

    db::Base& m_base;
    const db::Chemins& m_chemins;
    EtatNom& m_nom;
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
    dialogues::Dialogues& m_dialogues;
    DernierExport& m_dernierExport;
    view::LanceFichier& m_lance;
};

}  // namespace exportation
