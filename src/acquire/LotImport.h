#pragma once

#include "db/Contexte.h"

#include <chrono>
#include <cstddef>
#include <optional>

namespace acquire {

// The sheets that are stored together: one transaction, opened when it is needed, bounded in sheets, in bytes (it lives
// in memory) and in time. Not confirmed, it leaves no trace.
class LotImport {
  public:
    static constexpr int kFiches = 500;
    static constexpr std::size_t kOctets = 32 << 20;
    static constexpr std::chrono::milliseconds kDuree{3000};

    explicit LotImport(const db::Contexte& c) : m_base(c.base.base), m_montre(c.montre) {}

    void commence();  // nothing while it is open
    void compteFiche(std::size_t octets);
    [[nodiscard]] bool estPlein() const;
    void confirme();  // nothing unless it is open
    void abandonne() { m_transaction.reset(); }

  private:
    dao::Database& m_base;
    systeme::Montre m_montre;
    std::optional<dao::Transaction> m_transaction;
    int m_fiches = 0;
    std::size_t m_octets = 0;
    std::chrono::steady_clock::time_point m_debut;
};

}  // namespace acquire
