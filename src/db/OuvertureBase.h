#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"

#include <optional>
#include <string>

namespace db {

inline constexpr const char* kBaseDansTmp =
    "Le dossier Tmp d'Ambrelis est vidé à chaque fin du programme : une base ne peut pas s'y trouver.";

// Makes sure that the base's file exists and opens it with its three recordsets. Any failure shows its message and
// throws systeme::FinDuProgramme; no file is harmed by it.
class OuvertureBase {
  public:
    OuvertureBase(Base& base, Chemins& chemins, dialogues::Dialogues& dialogues)
        : m_base(base), m_chemins(chemins), m_dialogues(dialogues) {}

    // Begins with assureLeFichier.
    void operator()();
    // The same for the base that was open until now: no other file takes its place.
    void reprend();
    // Opens what chemins.base names in place of the open base. False, nothing changed and nothing shown, when it is none.
    [[nodiscard]] bool rouvre();
    // May change chemins.base to the program folder's own "films.mdb", chemins.baseAbsente then naming the one that is
    // not there, and make that file from the template. Answers whether it was made.
    bool assureLeFichier();

    // Whether that existing file opens as a base. Shows the message of the failed opening when it does not; the open
    // base and the file stay as they are.
    [[nodiscard]] bool sOuvre(const std::string& chemin);

    // More of the last failure than its message says: "elle est utilisée par un autre programme"; may be empty.
    [[nodiscard]] const std::string& raison() const { return m_raison; }

  private:
    struct Refus {
        std::string texte;
        int style;
        std::string raison;  // may be empty
    };
    [[nodiscard]] std::optional<Refus> essaie(const std::string& chemin, Base& base) const;
    bool ouvre(const std::string& chemin, Base& base);

    Base& m_base;
    Chemins& m_chemins;
    dialogues::Dialogues& m_dialogues;
    std::string m_raison;
};

}  // namespace db
