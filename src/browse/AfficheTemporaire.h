#pragma once

#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Avis.h"
#include "platform/fichiers/Fichiers.h"

#include <optional>
#include <string>
#include <string_view>

namespace browse {

// The temporary poster file, through which every display of a poster goes: whatever the sheet shows was put there for
// the film shown.
class AfficheTemporaire {
  public:
    AfficheTemporaire(const db::Chemins& chemins, db::EtatStockage& stockage, dialogues::Dialogues& dialogues,
                      ecran::Avis& avis)
        : m_chemins(chemins), m_stockage(stockage), m_dialogues(dialogues), m_avis(avis) {}

    void efface();
    // `affiche` is the column's value. A poster file that is gone is told to the user, and there is no temporary file.
    void depuis(std::string_view affiche);
    void depuisOctets(std::string_view octets);

    // The picture's bytes; nothing without one.
    [[nodiscard]] std::optional<std::string> octets() const;
    // The film has a poster that ought to be there. Where it could not be put, the notice line says so.
    [[nodiscard]] bool estAttendue() const { return m_attendue; }

  private:
    void depuisFichier(std::string_view affiche);
    [[nodiscard]] std::optional<fichiers::Place> cherche(std::string_view affiche, const std::string& dossier) const;

    const db::Chemins& m_chemins;
    db::EtatStockage& m_stockage;
    dialogues::Dialogues& m_dialogues;
    ecran::Avis& m_avis;
    bool m_attendue = false;
};

}  // namespace browse
