#pragma once

#include "db/Requete.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace edit {

// Work over many films, step by step: stored in lots, each one transaction bounded in steps and in time; the screen
// breathes between two steps and shows how far the work is. A stop keeps what was done; of a lot that fails nothing
// stays, in the base nor in the count. No box may be shown before termine.
class TravailParLots {
  public:
    static constexpr long kPas = 2000;
    static constexpr std::chrono::milliseconds kDuree{2000};

    struct Pas {
        long faits = 0;        // what it adds to the count
        bool dernier = false;  // the work ends here, this step kept
    };
    using Etape = std::function<Pas(long rang)>;

    // `c` outlives it. `total`: the steps of all that will be executed. A statement that cannot be opened is told under `numero`.
    TravailParLots(const db::Contexte& c, db::NumeroErreur numero, long total);
    TravailParLots(const TravailParLots&) = delete;
    TravailParLots& operator=(const TravailParLots&) = delete;
    ~TravailParLots() { m_c.travaux.ProgressBar3.Visible = false; }

    // A statement of a step, where no box may be shown: a failure ends the work.
    [[nodiscard]] dao::Recordset ouvre(const std::string& enonce);
    // The steps 0 to nombre - 1; one that throws 3167 (its row is gone) does nothing. False when the work ended before: by the user, by a step, or by a failure.
    bool execute(long nombre, const Etape& etape);
    [[nodiscard]] long faits() const { return m_faits; }
    // Ends the work, and tells what made it fail.
    void termine();

  private:
    struct Echec {
        std::string texte;
        int style = dialogues::kSimple;
    };
    struct EnonceRefuse {};

    [[nodiscard]] long executeLot(long debut, long nombre, const Etape& etape);
    [[nodiscard]] static Pas executePas(long rang, const Etape& etape);

    const db::Contexte& m_c;
    db::NumeroErreur m_numero;
    std::optional<ecran::Travail> m_travail;
    std::optional<Echec> m_echec;
    bool m_fini = false;
    long m_faits = 0;
};

}  // namespace edit
