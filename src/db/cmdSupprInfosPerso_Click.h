#pragma once

#include "db/Base.h"
#include "db/Rafraichissement.h"
#include "platform/dialogues/Dialogues.h"

namespace db {

// Deletes every holding, when the user agrees: all of them or, when that fails, none.
class cmdSupprInfosPerso_Click {
  public:
    cmdSupprInfosPerso_Click(Base& base, Rafraichissement& rafraichissement, dialogues::Dialogues& dialogues)
        : m_base(base), m_rafraichissement(rafraichissement), m_dialogues(dialogues) {}

    // Throws dao::ErreurDao; no holding is gone then.
    void operator()();

  private:
    [[nodiscard]] bool confirme();
    [[nodiscard]] long supprime(dao::Recordset& possedes);

    Base& m_base;
    Rafraichissement& m_rafraichissement;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace db
