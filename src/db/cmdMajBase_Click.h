#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "db/Rafraichissement.h"
#include "db/SensConversion.h"
#include "db/cmdCompacter_Click.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"
#include "platform/systeme/Montre.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace db {

// What the conversion of the posters works on.
struct OutilsConversion {
    Base& base;
    const Chemins& chemins;
    EtatStockage& stockage;
    ecran::Progression& progression;
    ecran::Ecran& ecran;
    dialogues::Dialogues& dialogues;
    systeme::Montre montre = std::chrono::steady_clock::now;
};

// Brings every poster to the storage chosen for new ones. Stopped or killed anywhere, each film still has its poster,
// and the next conversion goes on.
class cmdMajBase_Click {
  public:
    cmdMajBase_Click(const OutilsConversion& outils, cmdCompacter_Click& cmdCompacter,
                     Rafraichissement& rafraichissement)
        : m_outils(outils), m_cmdCompacter(cmdCompacter), m_rafraichissement(rafraichissement) {}

    // Throws dao::ErreurDao when the films cannot be read, systeme::FinDuProgramme as the compaction does.
    void operator()();

  private:
    using Echec = std::optional<std::string>;  // what to tell the user

    [[nodiscard]] std::unique_ptr<SensConversion> sens(const std::string& dossier) const;
    [[nodiscard]] Echec convertit(RapportConversion& rapport);
    [[nodiscard]] Echec convertitTout(SensConversion& sens, dao::Recordset& films, RapportConversion& rapport);
    [[nodiscard]] bool convertitLot(SensConversion& sens, dao::Recordset& films, RapportConversion& rapport);
    [[nodiscard]] bool convertitFilms(SensConversion& sens, dao::Recordset& films, RapportConversion& lot);

    OutilsConversion m_outils;
    cmdCompacter_Click& m_cmdCompacter;
    Rafraichissement& m_rafraichissement;
};

}  // namespace db
