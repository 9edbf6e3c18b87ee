#pragma once

#include "platform/ecran/Controles.h"

#include <array>

namespace browse {

// The film sheet: general page and "Autres informations" page, and the captions of the windows that follow the film.
struct EtatFiche {
    // General page. Label1: 0 title, 1 director line, 2 production and year, 4 origin, 5 duration, 6 genre; 3 is unused.
    std::array<ecran::Etiquette, 7> Label1;
    ecran::Etiquette lblRealisateur;
    ecran::Etiquette lblInfosActeurs;
    ecran::ZoneTexte Text1;                // summary
    ecran::Etiquette lblNote;              // "Note : 8/10"
    double note = 0;                       // the same for the stars; 0 for none
    ecran::Image Image1;                   // the poster
    ecran::Etiquette Label12;              // poster status: loading, or "Pas d'image"
    ecran::Bouton cmdAjouterAffiche;       // does what a click on the status does, where it does something
    std::array<ecran::Bouton, 3> cmdPuce;  // the holdings at a glance: owned or not, lent, reserved
    std::array<ecran::Cadre, 2> frameGeneralites;
    std::array<ecran::Cadre, 2> frameAutresInfos;
    ecran::Bouton cmdGeneralites, cmdAutresInfos;  // hidden where the layout shows both pages
    ecran::Bouton cmdFichiersFilm;                 // opens frmFichiersFilm; visible when a file is attached
    ecran::Bouton cmdModifieNote, cmdModifierTitre, cmdSupprimerTitre, cmdCreeFichierTxt;

    // Holdings.
    std::array<ecran::BoutonOption, 2> Option1;  // 0 not owned, 1 owned
    ecran::Cadre framePossession;                // what is known of an owned copy
    std::array<ecran::ZoneTexte, 7> Text10;      // 0 to 2 files, 3 storage place, 4 notes, 6 date; 5 is unused
    std::array<ecran::Liste, 3> Combo7;          // 0 lent to, 1 reserved for, 2 support
    std::array<ecran::Bouton, 3> Command2;       // choose a file
    ecran::Bouton cmdValiderInfosPossessions, cmdRaffraichirListe;

    std::string captionAffiche;  // of frmAffiche

    // frmFichiersFilm.
    std::string captionFichiers;
    std::array<ecran::Bouton, 3> Command1;       // the attached files, by their names; the fourth only closes
    std::array<std::string, 3> cheminsFichiers;  // their whole paths, as they can be shown

    EtatFiche() {
        ecran::choisit(Option1, 0);
        cmdValiderInfosPossessions.Visible = false;
        cmdFichiersFilm.Visible = false;
        for (ecran::Bouton& fichier : Command1)
            fichier.Enabled = false;
        Image1.Visible = false;
    }
};

}  // namespace browse
