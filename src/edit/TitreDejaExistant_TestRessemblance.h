#pragma once

#include "edit/Contexte.h"
#include "util/Similarite.h"

#include <functional>
#include <string>

namespace edit {

class LettresDuCatalogue;

// A film whose title and director are each more than this alike (in per cent) resembles the new one.
inline constexpr int kSeuilRessemblance = 80;

// Whether two texts are that much alike.
[[nodiscard]] bool ressemble(const util::CompteLettres& gauche, const util::CompteLettres& droite);

// Shows the user, one after the other, the films of the catalogue that resemble a new one, by title. True when the user
// refused the new film because of one of them; false when nothing is close, or all were accepted. `avantQuestion` runs
// before each question: a batch closes its transaction there.
[[nodiscard]] bool TitreDejaExistant_TestRessemblance(const Contexte& c, const db::CleFilm& film,
                                                      const LettresDuCatalogue& catalogue,
                                                      const std::function<void()>& avantQuestion = {});

// Every film by title, as all that tells resemblances reads them.
[[nodiscard]] dao::Recordset ouvreFilmsParTitre(const Contexte& c);

[[nodiscard]] std::string questionRessemblance(const db::CleFilm& film, const db::CleFilm& ancien);

}  // namespace edit
