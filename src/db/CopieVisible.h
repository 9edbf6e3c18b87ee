#pragma once

#include "db/Contexte.h"
#include "platform/dao/Copie.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace db {

// How far many bytes are, as the user sees it; he may stop it.
class OctetsVisibles {
  public:
    // `c` outlives it. Less than `enUnMoment` takes no time, and shows nothing.
    OctetsVisibles(const Contexte& c, std::string texte, std::int64_t enUnMoment)
        : m_c(c), m_texte(std::move(texte)), m_enUnMoment(enUnMoment) {}
    OctetsVisibles(const OctetsVisibles&) = delete;
    OctetsVisibles& operator=(const OctetsVisibles&) = delete;
    ~OctetsVisibles();

    [[nodiscard]] bool avance(std::int64_t faits, std::int64_t total);  // false: he stopped it

  private:
    const Contexte& m_c;
    std::string m_texte;
    std::int64_t m_enUnMoment;
    std::optional<ecran::Travail> m_travail;
};

// Copying a base as the user sees it.
class CopieVisible {
  public:
    CopieVisible(const Contexte& c, std::string texte)
        : m_c(c), m_visible(c, std::move(texte), 32 << 20) {}  // `c` outlives it

    // As dao::DBEngine::copieBase, to a new file at `travail`, which is gone again unless it answers Faite. That file is
    // the user's own in the same measure as the base, and marked as in use as long as this stands.
    [[nodiscard]] dao::DBEngine::IssueDeCopie copie(const std::string& source, const std::string& travail);

  private:
    const Contexte& m_c;
    OctetsVisibles m_visible;
};

}  // namespace db
