#pragma once

#include "db/Chemins.h"
#include "db/ConversionJet.h"
#include "db/EtatStockage.h"
#include "db/RapportJet.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"

#include <optional>
#include <string>

namespace db {

// What a conversion shows itself with.
struct OutilsOuvertureJet {
    ecran::Progression& progression;
    ecran::Etiquette& lblTravail;
    ecran::Ecran& ecran;
    dialogues::Dialogues& dialogues;
    EtatStockage& stockage;  // where posters in files are looked for first
    const Chemins& chemins;
};

// A genuine Jet base stands where a base is about to be opened: when the user agrees it is converted, and the result
// takes its name. The original stays beside it, under a visible name that nothing bore.
//
// Of a damaged base, when the user agrees to that too, what can be read is converted; what is lost is told, and kept in a
// text beside it.
//
// At each moment the file's name leads to the untouched original or to the whole new base, the original then standing
// beside; a stop, a failure or a kill leaves the original under its name.
class OuvertureJet {
  public:
    explicit OuvertureJet(const OutilsOuvertureJet& outils) : m_outils(outils) {}

    [[nodiscard]] static bool estJet(const std::string& chemin);
    // The report of the conversion, to be shown once its result is open; empty when there is none: the user said no,
    // or was told why.
    [[nodiscard]] std::optional<std::string> operator()(const std::string& chemin);

  private:
    [[nodiscard]] bool accepte(const std::string& original) const;
    [[nodiscard]] std::string convertit(const std::string& original, const std::string& travail);
    [[nodiscard]] RapportJet lit(const std::string& original, const std::string& travail);
    [[nodiscard]] IssueJet passe(const std::string& original, const std::string& travail,
                                 const jet::Ouverture& ouverture);
    [[nodiscard]] IssueJet litCeQuiEstLisible(const std::string& original, const std::string& travail,
                                              const jet::Ouverture& ouverture, const std::string& raison);
    [[nodiscard]] bool accepteLesPertes(const std::string& original, const std::string& raison,
                                        const RapportJet& rapport) const;
    void compteAffichesNonTrouvees(const std::string& original, RapportJet& rapport) const;

    OutilsOuvertureJet m_outils;
};

}  // namespace db
