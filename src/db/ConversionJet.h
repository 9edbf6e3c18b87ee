#pragma once

#include "db/RapportJet.h"
#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"
#include "platform/jet/LecteurJet.h"

#include <optional>
#include <string>

namespace db {

// How a conversion ended: whole and checked, stopped by the user, or failed.
struct IssueJet {
    RapportJet rapport;                // of a whole conversion
    std::optional<std::string> echec;  // why it failed: French sentences for the user
    bool interrompu = false;
    bool abimee = false;  // it failed for what the file holds: something of it may be readable

    [[nodiscard]] bool estFaite() const { return !echec && !interrompu; }
};

// Reads a genuine Jet base whole into a new base of ours. The Jet file is only read.
//
// The rows keep their order, Null stays apart from "", texts are whole, posters are the bytes they were. What was
// written is read back and compared, and is on the disk when the conversion is done; otherwise nothing is left of it.
// `progression` goes from 0 to its Max meanwhile; whether it is shown is the caller's business.
class ConversionJet {
  public:
    ConversionJet(ecran::Progression& progression, ecran::Ecran& ecran) : m_progression(progression), m_ecran(ecran) {}

    // No file may stand at `destination`; one that does is left as it is, and the conversion fails. Throws nothing.
    // A base opened as damaged is converted as far as it can be read, and the report says what is lost.
    [[nodiscard]] IssueJet operator()(const std::string& source, const std::string& destination,
                                      const jet::Ouverture& ouverture = {});

  private:
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
};

}  // namespace db
