#pragma once

#include "acquire/AfficheDeFiche.h"
#include "acquire/AffichesImportees.h"
#include "acquire/Contexte.h"
#include "acquire/FicheFilm.h"
#include "acquire/LotImport.h"
#include "acquire/RapportImport.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace acquire {

// One passage over sheets, which writes. What it writes is stored in lots, each with its posters, whose files are on the
// disk before; between two sheets the screen breathes, and a stop leaves what was done. A poster that cannot be written
// ends the passage, and what came before it is stored. Of a lot that fails nothing stays, in the base, in the images
// folder nor in the report.
class PassageFiches {
  public:
    // `c` outlives it.
    PassageFiches(const Contexte& c, const FichesChoisies& fiches);
    PassageFiches(const PassageFiches&) = delete;
    PassageFiches& operator=(const PassageFiches&) = delete;
    virtual ~PassageFiches() = default;

    // Runs it to its end, to the user's stop, or to the base's failure, which it has shown.
    [[nodiscard]] RapportImport execute();

  protected:
    virtual void commence() {}
    // A lot is open.
    virtual void traite(const FicheFilm& fiche, const std::string& nom) = 0;

    enum class Complement { Affiche, Tout };
    // Gives the film that the base has of that name the poster that it lacks, or all that it lacks. False: nothing.
    bool completeLeFilm(const FicheFilm& fiche, const std::string& nom, Complement complement);
    [[nodiscard]] AfficheDeFiche afficheDe(const std::string& nom) const;
    // Nothing where there is no poster to be taken.
    [[nodiscard]] std::optional<AfficheImportee> place(const FicheFilm& fiche, const AfficheDeFiche& affiche);
    void confirmeLot();

    const Contexte& m_c;
    LotImport m_lot;
    RapportImport m_rapport;

  private:
    void parcourt();
    void lit(const std::string& nom);
    void noteCeQuiReste();
    [[nodiscard]] bool doitRespirer() const;
    [[nodiscard]] bool respire();  // false when the user stops

    DossierFiches m_dossier;
    AffichesImportees m_affiches;
    RapportImport m_acquis;  // the report as it was when the last lot was stored
    std::size_t m_lues = 0;
    std::size_t m_acquises = 0;  // sheets read until then
    std::chrono::steady_clock::time_point m_dernierSouffle;
};

}  // namespace acquire
