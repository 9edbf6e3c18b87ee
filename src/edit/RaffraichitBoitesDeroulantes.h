#pragma once

#include "browse/EtatFiche.h"
#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"

namespace edit {

// The three lists of the holdings (lent to, support, reserved for), filled with what the catalogue knows of each.
class BoitesDeroulantes {
  public:
    BoitesDeroulantes(db::Base& base, browse::EtatFiche& fiche, dialogues::Dialogues& dialogues)
        : m_base(base), m_fiche(fiche), m_dialogues(dialogues) {}

    // What the user is typing in them stays.
    void RaffraichitBoitesDeroulantes();

  private:
    void remplit(ecran::Liste& liste, const std::string& champ);

    db::Base& m_base;
    browse::EtatFiche& m_fiche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
