#include "acquire/LotImport.h"

namespace acquire {

void LotImport::commence() {
    if (m_transaction) return;
    m_transaction.emplace(m_base);
    m_fiches = 0;
    m_octets = 0;
    m_debut = m_montre();
}

void LotImport::compteFiche(std::size_t octets) {
    ++m_fiches;
    m_octets += octets;
}

bool LotImport::estPlein() const {
    return m_transaction && (m_fiches >= kFiches || m_octets >= kOctets || m_montre() - m_debut >= kDuree);
}

void LotImport::confirme() {
    if (!m_transaction) return;
    m_transaction->confirme();
    m_transaction.reset();
}

}  // namespace acquire
