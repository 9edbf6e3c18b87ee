#pragma once

#include "db/Base.h"
#include "platform/dialogues/Dialogues.h"
#include "util/Similarite.h"

#include <functional>
#include <string>
#include <string_view>

namespace edit {

// A film whose title and director are each more than this alike (in per cent) resembles the new one.
inline constexpr int kSeuilRessemblance = 80;

// Whether two texts are that much alike.
[[nodiscard]] bool ressemble(const util::CompteLettres& gauche, const util::CompteLettres& droite);

// Shows the user, one after the other, the films of the catalogue that resemble a new one.
class Ressemblances {
  public:
    Ressemblances(db::Base& base, dialogues::Dialogues& dialogues) : m_base(base), m_dialogues(dialogues) {}

    // True when the user refused the new film because of one of them; false when nothing is close, or all were accepted.
    // `avantQuestion` runs before each question: a batch closes its transaction there.
    [[nodiscard]] bool TitreDejaExistant_TestRessemblance(const std::string& titre, const std::string& realisateur,
                                                          const std::function<void()>& avantQuestion = {});

  private:
    db::Base& m_base;
    dialogues::Dialogues& m_dialogues;
};

// Every film, as both checks of a resemblance read them.
[[nodiscard]] dao::Recordset ouvreFilmsParTitre(db::Base& base, dialogues::Dialogues& dialogues);

[[nodiscard]] std::string questionRessemblance(std::string_view titre, std::string_view realisateur,
                                               std::string_view ancienTitre, std::string_view ancienRealisateur);

}  // namespace edit
