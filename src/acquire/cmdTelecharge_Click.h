#pragma once

#include "acquire/cmdAjoutAuto_Click.h"
#include "db/Chemins.h"
#include "edit/EtatAjout.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Ecran.h"
#include "view/LanceFichier.h"

#include <optional>
#include <string>

namespace acquire {

// Where the downloader stands in the program folder.
inline constexpr const char* kProgrammeRapatrix = "Le Rapatrix/Rapatrix.exe";

// Where the window shows that it works.
struct AvancementTravail {
    ecran::Etiquette& texte;
    ecran::Progression& barre;
};

// What a download is made with. All of it outlives the download.
struct OutilsTelechargement {
    edit::EtatAjout& ajout;
    const ecran::CaseACocher& chkLancerConnexion;
    AvancementTravail avancement;
    const db::Chemins& chemins;
    view::LanceFichier& lanceFichier;
    ImportFiches& import;
    dialogues::Dialogues& dialogues;
    ecran::Ecran& ecran;
    ecran::Demandes& demandes;
};

// Hands a web search to the downloader, waits for its end, and imports the sheets that it left in "Tmp". However this
// ends, neither its configuration nor a sheet stays there; what was neither added nor refused waits in FichesRecues'
// folder, which the next import is then proposed for.
class Telechargement {
  public:
    explicit Telechargement(const OutilsTelechargement& outils) : m_outils(outils) {}

    void ouvrePage();            // says where to put the downloader when it is not there
    void cmdTelecharge_Click();  // nothing without a text to look for
    void txtRechInternet_KeyDown(int code, int majuscule);

  private:
    [[nodiscard]] std::optional<std::string> prepare();
    [[nodiscard]] std::string ecritConfiguration();
    [[nodiscard]] std::string cherche(const std::string& programme);
    [[nodiscard]] bool attends(const std::string& programme);
    [[nodiscard]] bool importeQuandMeme(long fiches);

    OutilsTelechargement m_outils;
    const std::string m_configuration = m_outils.chemins.dossierTmp + "/RechFilms.tmp";
};

}  // namespace acquire
