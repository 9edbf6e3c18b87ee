#pragma once

#include "db/OuvertureBase.h"
#include "db/Rafraichissement.h"

#include <optional>
#include <string>

namespace db {

// Compacts the open base and removes the holdings of films that are no longer in the catalogue.
//
// The base's file is replaced by a complete copy, checked and on the disk, or not at all: what prevents it is told to
// the user and the base stays open as it was. The copy is "temp.tmp" in the program folder; for a base elsewhere, which may be on
// another file system, it lies beside the base.
class cmdCompacter_Click {
  public:
    cmdCompacter_Click(Base& base, Chemins& chemins, OuvertureBase& ouvertureBase, Rafraichissement& rafraichissement,
                       dialogues::Dialogues& dialogues)
        : m_base(base),
          m_chemins(chemins),
          m_ouvertureBase(ouvertureBase),
          m_rafraichissement(rafraichissement),
          m_dialogues(dialogues) {}

    // Throws systeme::FinDuProgramme when the compacted base cannot be opened again.
    void operator()();

  private:
    using Echec = std::optional<std::string>;  // what to tell the user

    [[nodiscard]] Echec compacte();
    void copieEtRemplace(const std::string& base);
    [[nodiscard]] std::string fichierDeTravail(const std::string& base) const;
    [[nodiscard]] Echec nettoie();
    void supprimeOrphelins();

    Base& m_base;
    Chemins& m_chemins;
    OuvertureBase& m_ouvertureBase;
    Rafraichissement& m_rafraichissement;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace db
