#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace db {

// Makes sure that the base's file exists and opens it with its three recordsets. Any failure shows its message and
// throws systeme::FinDuProgramme; no file is harmed by it.
class OuvertureBase {
  public:
    OuvertureBase(Base& base, Chemins& chemins, dialogues::Dialogues& dialogues)
        : m_base(base), m_chemins(chemins), m_dialogues(dialogues) {}

    // Begins with assureLeFichier.
    void operator()();
    // May change chemins.base to the program folder's own "films.mdb", and make that file from the template.
    void assureLeFichier();

    // Whether that existing file opens as a base. Shows the message of the failed opening when it does not; the open
    // base and the file stay as they are.
    [[nodiscard]] bool sOuvre(const std::string& chemin);

  private:
    bool ouvre(const std::string& chemin, Base& base);

    Base& m_base;
    Chemins& m_chemins;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace db
