#pragma once

#include "platform/ecran/Controles.h"

#include <array>
#include <string>

namespace app {

// The function panels of the right side (inside frameListeFonctions): add ("divers"), tools, configuration.
struct EtatFonctions {
    ecran::Cadre frameDivers, frameOutils, frameConfig;
    std::array<ecran::Bouton, 2> cmdConfig;  // tools, configuration; the bold one is showing
    // Help captions: a title and its description, in the order of the panels' sections.
    // 0 .FILM files, 1 punctuation, 2 Internet, 3 personal titles, 4 compaction, 5 pictures, 6 programs, 7 search, 8 text
    // file, 9 deletion by ticking.
    std::array<ecran::Etiquette, 10> Label14;
    std::array<ecran::Etiquette, 10> Label7;

    // Tools.
    ecran::Etiquette lblCheminBase;  // of the open base
    ecran::Bouton cmdChargeOuvreBase, cmdCompacter, cmdInfosBase, cmdSupprInfosPerso, cmdPonctuation, cmdMultiSuppress,
        cmdCreerListe, cmdEnregistreJet;
    // Configuration.
    ecran::Bouton cmdMajBase;
    ecran::CaseACocher chkLancerConnexion;
    std::array<ecran::Liste, 2> Combo6;  // extensions, programs
    ecran::Bouton cmdParcourirLogiciel, cmdSupprExtension, cmdAjoutExtension;
    ecran::ZoneTexte txtNouvelleExtension;

    ecran::Etiquette Label13;  // version
    ecran::Etiquette Label4;   // link to the program's own page
};

// Window size in twips (15 are one logical pixel); 0: the designed size.
struct EtatFenetre {
    int Width = 0;
    int Height = 0;
    std::string Caption = "Ambrelis";  // and which base is open
};

}  // namespace app
