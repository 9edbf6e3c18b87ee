#pragma once

#include "browse/Arbre.h"
#include "browse/FilmsPossedes.h"
#include "browse/ZonesEtTris.h"
#include "platform/ecran/Controles.h"

#include <array>
#include <set>
#include <string>

namespace browse {

// TreeView1: the nodes, and what the user and the program did to them.
struct VueArbre : ecran::Controle {
    Arbre Nodes;
    int SelectedItem = 0;  // index of the highlighted node, 0 for none; the window scrolls and expands to it
    bool Checkboxes = false;
    std::set<int> coches;  // indexes of the ticked nodes
    int aOuvrir = 0;       // index of a heading to open, 0 for none; the window opens it once
};

// The left side of the window and what the listing remembers.
struct EtatListe {
    ecran::Liste ChoixZone;
    ecran::Liste ChoixTri;
    ecran::Cadre Frame1;                     // "Liste de films (12 titres)"
    std::array<ecran::Etiquette, 2> Label9;  // the two counts
    ecran::CaseACocher AffStats;
    VueArbre TreeView1;

    int noeudChoisi = -1;           // index of the node whose sheet was asked for, -1 for none
    std::string cleCliquee;         // key of the node last clicked or right-clicked
    int triDeLArbre = 0;            // the sort the tree was filled with: a refused sort leaves it as it was
    int zoneDeLArbre = -1;          // and the zone, kZoneRecherche for a search; -1 before the first filling
    bool occupe = false;            // the program itself is changing ChoixZone or ChoixTri
    FilmsPossedes possedes;         // for the marks of the films
    std::string critereRecherche;   // search condition, empty when no search was made
    int zoneRecherche = kZoneTous;  // saved search zone
    int recherches = 0;             // rises with each search that is shown, also of what was just added
};

}  // namespace browse
