#pragma once

#include "app/EtatAnnulation.h"
#include "app/EtatCollection.h"
#include "app/EtatFonctions.h"
#include "app/EtatGuide.h"
#include "app/EtatSauvegardes.h"
#include "browse/EtatFiche.h"
#include "browse/EtatListe.h"
#include "browse/EtatPanneaux.h"
#include "browse/EtatRecherche.h"
#include "db/EtatStockage.h"
#include "db/EtatTravaux.h"
#include "edit/EtatAjout.h"
#include "edit/EtatMultiSuppression.h"
#include "ensemble/EtatFiltre.h"
#include "export/EtatNom.h"
#include "platform/ecran/Avis.h"
#include "platform/ecran/Ecran.h"
#include "view/EtatAffiche.h"
#include "view/EtatFichiers.h"

namespace app {

// Which of the tree's pop-up menus a right click asked for; the window shows it after the command.
enum class MenuContextuel { Aucun, MenuClicDroitFilm, MenuClicDroitSupport, MenuClicDroitGenre };

// Every control value of the window. The window copies its widgets in before a command, and back after it.
struct Etats {
    EtatFenetre frmPrincipal;
    browse::EtatListe liste;
    browse::EtatRecherche recherche;
    browse::EtatPanneaux panneaux;
    browse::EtatFiche fiche;
    db::EtatStockage stockage;
    db::EtatTravaux travaux;
    edit::EtatAjout ajout;
    edit::EtatMultiSuppression multiSuppression;
    EtatFonctions fonctions;
    EtatCollection collection;
    ensemble::EtatFiltre filtre;
    EtatAnnulation annulation;
    view::EtatAffiche affiche;
    view::EtatFichiers fichiers;
    exportation::EtatNom nom;
    EtatSauvegardes sauvegardes;
    EtatGuide guide;
    ecran::EtatAvis avis;
    ecran::Demandes demandes;
    MenuContextuel menu = MenuContextuel::Aucun;
};

}  // namespace app
