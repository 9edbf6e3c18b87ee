#pragma once

#include "acquire/AffichesImportees.h"
#include "acquire/Contexte.h"
#include "acquire/DossierFiches.h"
#include "acquire/FicheFilm.h"
#include "acquire/LotImport.h"
#include "acquire/RapportImport.h"
#include "edit/EnregistreNouveauFilm.h"
#include "edit/LettresDuCatalogue.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace acquire {

// What the user answered before the import.
struct ChoixImport {
    bool possedes = false;
    std::string support;
    bool testeRessemblance = false;
    std::string date;  // of the day, for the whole batch
};

// One passage over a folder. Films are stored in lots, each with its holding and its poster, whose file is on the disk
// before; between two sheets the screen breathes, and a stop leaves what was added. A poster that cannot be written ends
// the import, and what came before it is stored. Of a lot that fails nothing stays, in the base, in the images folder nor
// in the report. A film that is there already without a poster is given the one beside its sheet.
class PassageImport {
  public:
    // `c` outlives it.
    PassageImport(const Contexte& c, const ChoixImport& choix, const std::string& dossier);

    // Runs it to its end, to the user's stop, or to the base's failure, which it has shown.
    [[nodiscard]] RapportImport execute();

  private:
    void importeTout();
    void importe(const std::string& nom);
    [[nodiscard]] bool estTropProche(const FicheFilm& fiche);
    void enregistre(const FicheFilm& fiche, const std::string& nom);
    void remplitSaisie(const FicheFilm& fiche);
    // What the poster beside a sheet becomes; what keeps it out, for the report, or nothing where it goes without a word.
    struct Examen {
        std::optional<AfficheImportee> affiche;
        std::string manque{};
    };
    [[nodiscard]] Examen placeAffiche(const FicheFilm& fiche, const std::string& nom);  // throws db::EchecConversion
    void completeAffiche(const FicheFilm& fiche, const std::string& nom);
    void gardeLeLotEntier();
    void noteCeQuiReste();
    void confirmeLot();
    [[nodiscard]] bool doitRespirer() const;
    [[nodiscard]] bool respire();  // false when the user stops

    const Contexte& m_c;
    ChoixImport m_choix;
    DossierFiches m_dossier;
    LotImport m_lot;
    AffichesImportees m_affiches;
    edit::EnregistrementFilm m_enregistrement;
    std::optional<edit::LettresDuCatalogue> m_lettres;  // where resemblances are tested
    RapportImport m_rapport;
    RapportImport m_acquis;  // the report as it was when the last lot was stored
    std::size_t m_lues = 0;
    std::size_t m_acquises = 0;  // sheets read until then
    std::chrono::steady_clock::time_point m_dernierSouffle;
};

}  // namespace acquire
