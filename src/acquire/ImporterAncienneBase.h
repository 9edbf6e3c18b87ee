#pragma once

#include "acquire/AncienneInstallation.h"
#include "acquire/PassageAncienne.h"
#include "db/Rafraichissement.h"

#include <optional>
#include <string>

namespace acquire {

// The films, holdings and posters of a previous installation, brought into the open base. Nothing of the previous
// installation is written to; a second import of it adds nothing.
class ImportAncienneBase {
  public:
    ImportAncienneBase(const OutilsAncienne& outils, db::Rafraichissement& rafraichissement)
        : m_outils(outils), m_rafraichissement(rafraichissement) {}

    // The third button of the add panel: what the import does, and whether to go on.
    void Command13_Click();
    // Asks for the folder, and for what its settings name and is not there; says which base and which images these are,
    // imports, reports, and shows the base as it is then.
    void ImporterAncienneBase();

  private:
    // What is to be imported; nothing when the choice was cancelled, or cannot be and was told.
    [[nodiscard]] std::optional<AncienneInstallation> choisit();
    [[nodiscard]] bool indiqueBase(AncienneInstallation& ancienne);
    void indiqueImages(AncienneInstallation& ancienne);
    [[nodiscard]] std::string refus(const AncienneInstallation& ancienne) const;
    [[nodiscard]] bool confirme(const AncienneInstallation& ancienne);
    void refuse(const std::string& message);
    void importe(const AncienneInstallation& ancienne);

    OutilsAncienne m_outils;
    db::Rafraichissement& m_rafraichissement;
    std::string m_dernierDossier;  // chosen
};

}  // namespace acquire
