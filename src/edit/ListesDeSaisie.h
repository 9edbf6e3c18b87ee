#pragma once

#include "db/Base.h"
#include "edit/EtatAjout.h"
#include "platform/dialogues/Dialogues.h"

namespace edit {

// The three lists of the manual page (genre, origin, production), filled with what the catalogue knows of each.
// Throws db::RequeteEchouee after its message.
class ListesDeSaisie {
  public:
    ListesDeSaisie(db::Base& base, EtatAjout& ajout, dialogues::Dialogues& dialogues)
        : m_base(base), m_ajout(ajout), m_dialogues(dialogues) {}

    void remplit();  // nothing that was typed in them stays

  private:
    void relit(std::size_t rang);
    [[nodiscard]] ecran::Liste& liste(std::size_t rang);

    db::Base& m_base;
    EtatAjout& m_ajout;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
