#pragma once

#include "acquire/PassageImport.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeEtAfficheRecherche.h"
#include "browse/EtatListe.h"
#include "edit/RaffraichitBoitesDeroulantes.h"
#include "platform/systeme/Horloge.h"

#include <functional>
#include <string>

namespace acquire {

// How an import shows what it added. All of it outlives the import.
struct SuitesImport {
    browse::EtatListe& liste;
    browse::CreeEtAfficheRecherche& creeEtAfficheRecherche;
    browse::AfficheNbTitres& afficheNbTitres;
    edit::BoitesDeroulantes& boites;
};

// Imports every sheet of the folder of txtCheminAjoutAuto: asks what must be known, stores the films, reports, and shows
// the films added that day. Stopped by the user or by a failure of the base, it reports what was added until then.
class ImportFiches {
  public:
    // What becomes of the sheets that were neither added nor refused, before the report that it may add to.
    using Rangement = std::function<void(RapportImport&)>;

    ImportFiches(const OutilsImport& outils, const SuitesImport& suites, const systeme::Horloge& horloge)
        : m_outils(outils), m_suites(suites), m_horloge(horloge) {}

    void cmdAjoutAuto_Click();
    void importe(const Rangement& range);  // the same

  private:
    [[nodiscard]] ChoixImport demandeChoix(long nombre);
    void montreAjoutsDuJour(const std::string& date);

    OutilsImport m_outils;
    SuitesImport m_suites;
    const systeme::Horloge& m_horloge;
};

[[nodiscard]] std::string questionPossession(long nombre);

}  // namespace acquire
