#pragma once

#include "edit/ValeursDeSaisie.h"
#include "platform/ecran/Controles.h"

#include <array>
#include <string>

namespace edit {

// The add panel: automatic import and web search on one page, manual entry on the other.
struct EtatAjout {
    std::array<ecran::Bouton, 3> Command13;  // automatic, manual, import of a previous installation
    ecran::Etiquette Label5;                 // what the page shown is for
    ecran::Cadre frameAjoutAuto;
    ecran::Cadre Frame13;

    // Automatic page.
    ecran::ZoneTexte txtCheminAjoutAuto;
    ecran::Bouton cmdParcourir2, cmdAjoutAuto;
    ecran::Etiquette lblNbFilms;      // how many sheets the folder holds
    bool fichesAImporter = false;     // it holds some
    ecran::Etiquette lblProgression;  // the sheet being imported
    ecran::Progression ProgressBar1;
    ecran::ZoneTexte txtRechInternet;
    std::array<ecran::BoutonOption, 4> OptionTelecharge;  // by title, director, actor, year
    ecran::Bouton cmdTelecharge;
    ecran::Etiquette lblRapatrix;  // where to put the downloader; shown while it is not there

    // Page of the import of a previous installation.
    ecran::Cadre frameImportBase;
    ecran::Bouton cmdImporterBase;
    ecran::Etiquette lblBaseOuImporter;  // which base is added to
    std::string dossierAncienneVersion;  // last chosen, where the next choice begins

    // Manual page. Text3: 0 title, 1 director, 2 year, 3 duration, 4 actors.
    std::array<ecran::ZoneTexte, 5> Text3;
    ecran::Liste Combo2;  // genre
    ecran::Liste Combo3;  // origin
    ecran::Liste Combo4;  // production
    ValeursDeSaisie valeurs;
    ecran::ZoneTexte txtResume;
    ecran::Etiquette lblImage;   // path of the poster chosen for the new film
    ecran::Bouton cmdAjoutFilm;  // its caption is the mode

    EtatAjout() {
        cmdAjoutFilm.Caption = "Ajouter";
        ecran::choisit(OptionTelecharge, 0);
        frameAjoutAuto.Visible = false;
        Frame13.Visible = false;
        frameImportBase.Visible = false;
        lblRapatrix.Visible = false;
        lblProgression.Visible = false;
        ProgressBar1.Visible = false;
    }
    [[nodiscard]] bool modeModifier() const { return cmdAjoutFilm.Caption == "Modifier"; }
};

}  // namespace edit
