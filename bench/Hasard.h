#pragma once

#include <cstdint>

namespace bench {

// splitmix64: the same sequence everywhere, which the standard distributions do not promise.
class Hasard {
  public:
    explicit Hasard(std::uint64_t graine) : m_etat(graine * 0xd1342543de82ef95U + 0x2545f4914f6cdd1dU) {}

    std::uint64_t suivant() {
        m_etat += 0x9e3779b97f4a7c15U;
        std::uint64_t x = m_etat;
        x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9U;
        x = (x ^ (x >> 27U)) * 0x94d049bb133111ebU;
        return x ^ (x >> 31U);
    }
    // From 0 to borne - 1.
    std::uint64_t sous(std::uint64_t borne) { return suivant() % borne; }
    bool chance(std::uint64_t surCent) { return sous(100) < surCent; }
    template <typename Tableau>
    const auto& choix(const Tableau& tableau) {
        return tableau[sous(std::size(tableau))];
    }

  private:
    std::uint64_t m_etat;
};

}  // namespace bench
