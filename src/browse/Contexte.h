#pragma once

#include "browse/EtatFiche.h"
#include "browse/EtatListe.h"
#include "browse/EtatPanneaux.h"
#include "browse/EtatRecherche.h"
#include "browse/FilmCourant.h"
#include "browse/SuiviAffiche.h"
#include "db/Contexte.h"

namespace browse {

// What the commands of the listing and of the sheet work with.
struct Contexte : db::Contexte {
    EtatListe& liste;
    EtatRecherche& recherche;
    EtatFiche& fiche;
    EtatPanneaux& panneaux;
    FilmCourant& film;
    SuiviAffiche* suiviAffiche = nullptr;  // told of each load of a poster, when there is one
};

}  // namespace browse
