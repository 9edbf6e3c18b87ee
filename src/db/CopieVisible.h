#pragma once

#include "db/Contexte.h"
#include "platform/dao/Copie.h"

#include <optional>
#include <string>

namespace db {

// Copying a base as the user sees it: a small one takes no time, and shows nothing; of a large one the progress is shown,
// and the user may stop it.
class CopieVisible {
  public:
    CopieVisible(const Contexte& c, std::string texte) : m_c(c), m_texte(std::move(texte)) {}  // `c` outlives it
    CopieVisible(const CopieVisible&) = delete;
    CopieVisible& operator=(const CopieVisible&) = delete;
    ~CopieVisible();

    // As dao::DBEngine::copieBase, to a new file at `travail`, which is gone again unless it answers Faite. That file is
    // the user's own in the same measure as the base, and marked as in use as long as this stands.
    [[nodiscard]] dao::DBEngine::IssueDeCopie copie(const std::string& source, const std::string& travail);

  private:
    [[nodiscard]] bool avance(std::int64_t faits, std::int64_t total);
    const Contexte& m_c;
    std::string m_texte;
    std::optional<ecran::Travail> m_travail;
};

}  // namespace db
