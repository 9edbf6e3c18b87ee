#pragma once

#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "db/Rafraichissement.h"

#include <optional>
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
    // The same for a base that was chosen already.
    void ouvre(const std::string& nom);
    // For a start whose base cannot be opened, its message shown: offers to choose another one until one opens. False
    // when the user does not want to.
    [[nodiscard]] bool ouvreUneAutre();

  private:
    using Rapport = std::optional<std::string>;  // of a conversion, to be shown once its result is open

    [[nodiscard]] std::string choisit();  // the name with its ending, empty when cancelled
    // Makes sure that it can be opened: makes it, when the user agrees, or converts it.
    [[nodiscard]] bool prepare(const std::string& nom, Rapport& rapport);
    [[nodiscard]] bool estRefusee(const std::string& nom);
    [[nodiscard]] bool cree(const std::string& nom);
    void remplaceLaBase(const std::string& nom);
    void prends(const std::string& nom);

    Base& m_base;
    Chemins& m_chemins;
    OuvertureBase& m_ouvertureBase;
    OuvertureJet& m_ouvertureJet;
    Rafraichissement& m_rafraichissement;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace db
