#pragma once

#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace edit {

// Is a film of the same title and the same director already in the catalogue? The equality is the base's own.
class Doublons {
  public:
    Doublons(db::Base& base, dialogues::Dialogues& dialogues) : m_base(base), m_dialogues(dialogues) {}

    // Makes the next question quick: the first one about a base reads the whole catalogue.
    void prepare() const;
    [[nodiscard]] bool TitreDejaExistant(const std::string& titre, const std::string& realisateur) const;

  private:
    db::Base& m_base;
    dialogues::Dialogues& m_dialogues;
};

[[nodiscard]] std::string requeteTitreDejaExistant(const std::string& titre, const std::string& realisateur);

}  // namespace edit
