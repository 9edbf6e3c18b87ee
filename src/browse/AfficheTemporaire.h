#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "platform/dialogues/Dialogues.h"

#include <string>
#include <string_view>

namespace browse {

// The temporary poster file, through which every display of a poster goes: whatever the sheet shows was put there for
// the film shown.
class AfficheTemporaire {
  public:
    AfficheTemporaire(const db::Chemins& chemins, db::EtatStockage& stockage, dialogues::Dialogues& dialogues)
        : m_chemins(chemins), m_stockage(stockage), m_dialogues(dialogues) {}

    void efface();
    // `affiche` is the column's value. A poster file that is gone is told to the user, and there is no temporary file.
    void depuis(std::string_view affiche);

  private:
    void depuisFichier(const std::string& nom);

    const db::Chemins& m_chemins;
    db::EtatStockage& m_stockage;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
