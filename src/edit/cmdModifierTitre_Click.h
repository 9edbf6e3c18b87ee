#pragma once

#include "browse/FilmCourant.h"
#include "edit/Command13_Click.h"
#include "edit/VoletAjout.h"
#include "platform/ecran/Avis.h"

namespace edit {

// Opens the manual page in modify mode, filled from the current film; nothing where no film is current.
class cmdModifierTitre_Click {
  public:
    cmdModifierTitre_Click(db::Base& base, EtatAjout& ajout, const browse::FilmCourant& courant, VoletAjout& volet,
                           ModesAjout& modes, ecran::Avis& avis, dialogues::Dialogues& dialogues)
        : m_base(base),
          m_ajout(ajout),
          m_courant(courant),
          m_volet(volet),
          m_modes(modes),
          m_avis(avis),
          m_dialogues(dialogues) {}

    // Throws db::RequeteEchouee after its message.
    void operator()();

  private:
    void remplit(const dao::Recordset& film);
    void nommeLeDisparu();

    db::Base& m_base;
    EtatAjout& m_ajout;
    const browse::FilmCourant& m_courant;
    VoletAjout& m_volet;
    ModesAjout& m_modes;
    ecran::Avis& m_avis;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
