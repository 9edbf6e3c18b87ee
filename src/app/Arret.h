#pragma once

#include "app/Etats.h"
#include "app/Extensions.h"
#include "db/Base.h"
#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"

namespace app {

// The shut-down: closes the base, writes the settings and the program table, empties "Tmp". A step that fails is told to
// the user and keeps none of the others from being done.
class Arret {
  public:
    Arret(const Etats& etats, const db::Chemins& chemins, const TableExtensions& extensions, db::Base& base,
          dialogues::Dialogues& dialogues)
        : m_etats(etats), m_chemins(chemins), m_extensions(extensions), m_base(base), m_dialogues(dialogues) {}

    // `ecritReglages` is false when the settings file could not be read at start-up: it is then left as it is.
    void execute(bool ecritReglages);

  private:
    void fermeBase();
    void enregistreReglages();
    [[nodiscard]] std::string reglages() const;

    const Etats& m_etats;
    const db::Chemins& m_chemins;
    const TableExtensions& m_extensions;
    db::Base& m_base;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace app
