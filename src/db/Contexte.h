#pragma once

#include "db/Annulations.h"
#include "db/Base.h"
#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "db/EtatTravaux.h"
#include "db/Rafraichissement.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Avis.h"
#include "platform/ecran/Ecran.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Horloge.h"
#include "platform/systeme/Montre.h"
#include "platform/systeme/Programmes.h"
#include "platform/systeme/Volumes.h"

#include <chrono>

namespace db {

// What every command works with: the machine, the open base, and of the window what concerns all of it. Each room above
// adds what is its own (browse::Contexte and the others are this one too), so that a command is handed no more than its
// room may know, and a constructor or a procedure names only what is particular to it.
//
// References alone: it is made once, by who owns what it names, and copied freely by what outlives a command.
struct Contexte {
    // The machine.
    dialogues::Dialogues& dialogues;
    ecran::Ecran& ecran;
    ecran::Images& images;
    const systeme::Horloge& horloge;
    systeme::Documents& documents;
    systeme::Programmes& programmes;
    systeme::Volumes& volumes;

    // The window.
    ecran::Avis& avis;
    ecran::Demandes& demandes;
    EtatTravaux& travaux;

    // The base.
    Base& base;
    Chemins& chemins;
    EtatStockage& stockage;
    Rafraichissement& rafraichissement;
    Annulations& annulations;

    systeme::Montre montre = std::chrono::steady_clock::now;  // by which long work bounds its lots
};

}  // namespace db
