#pragma once

#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "db/Rafraichissement.h"

#include <string>

namespace db {

// The open/create button: another base instead of the open one. A file that cannot be opened, made or converted is told
// to the user before anything is closed, and the open base stays.
class cmdChargeOuvreBase_Click {
  public:
    cmdChargeOuvreBase_Click(Base& base, Chemins& chemins, OuvertureBase& ouvertureBase, OuvertureJet& ouvertureJet,
                             Rafraichissement& rafraichissement, dialogues::Dialogues& dialogues)
        : m_base(base),
          m_chemins(chemins),
          m_ouvertureBase(ouvertureBase),
          m_ouvertureJet(ouvertureJet),
          m_rafraichissement(rafraichissement),
          m_dialogues(dialogues) {}

    void operator()();

  private:
    [[nodiscard]] std::string choisit();              // the name with its ending, empty when cancelled
    [[nodiscard]] bool cree(const std::string& nom);  // asks, then copies the template
    void convertitEtOuvre(const std::string& nom);
    void remplaceLaBase(const std::string& nom);

    Base& m_base;
    Chemins& m_chemins;
    OuvertureBase& m_ouvertureBase;
    OuvertureJet& m_ouvertureJet;
    Rafraichissement& m_rafraichissement;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace db
