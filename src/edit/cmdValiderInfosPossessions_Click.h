#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/EtatFiche.h"
#include "browse/SelectionneTitre.h"
#include "edit/RaffraichitBoitesDeroulantes.h"

#include <functional>

namespace edit {

// How a holding that changed is shown. All of it outlives the command.
struct SuitesPossession {
    browse::AffichageApresModification& affichageApresModification;
    browse::SelectionneTitre& selectionneTitre;
    browse::AfficheNbTitres& afficheNbTitres;
    BoitesDeroulantes& boites;
    std::function<void()> stockee = {};  // told as soon as the holding is in the base
};

// Stores the holdings part of the sheet as the current film's holding, or deletes that one where the film is no longer
// owned; nothing where no film is current. The film is shown again where the listing still has it.
class cmdValiderInfosPossessions_Click {
  public:
    cmdValiderInfosPossessions_Click(db::Base& base, const browse::EtatFiche& fiche, const browse::FilmCourant& courant,
                                     const SuitesPossession& suites, dialogues::Dialogues& dialogues)
        : m_base(base), m_fiche(fiche), m_courant(courant), m_suites(suites), m_dialogues(dialogues) {}

    // Throws db::RequeteEchouee after its message, or dao::ErreurDao.
    void operator()();

  private:
    void enregistre();
    void ecritChamps(dao::Recordset& possession) const;

    db::Base& m_base;
    const browse::EtatFiche& m_fiche;
    const browse::FilmCourant& m_courant;
    SuitesPossession m_suites;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
