#pragma once

#include <functional>

namespace dao {

// What a long reading calls every few milliseconds, nothing of the base being half done: the window lives on in it. It may
// read the base, and changes nothing in it. None: the reading goes on in one go.
using Souffle = std::function<void()>;

// Has something done that waits for the disk, or works on a file of its own, wherever it likes, and comes back once it is
// done. None: it is done at once.
using Attente = std::function<void(const std::function<void()>& travail)>;
inline void attends(const Attente& attente, const std::function<void()>& travail) {
    attente ? attente(travail) : travail();
}

// Breathes once in so many steps, each of which costs a count alone. The breath outlives it.
class Cadence {
  public:
    static constexpr unsigned kLignes = 256;      // rows that are read
    static constexpr unsigned kEnMemoire = 4096;  // of what a microsecond does

    explicit Cadence(const Souffle& souffle, unsigned pas = kLignes) : m_souffle(souffle), m_pas(pas) {}
    Cadence(Souffle&&, unsigned = kLignes) = delete;

    void operator()() {
        if (--m_restent != 0) return;
        m_restent = m_pas;
        if (m_souffle) m_souffle();
    }

  private:
    const Souffle& m_souffle;
    unsigned m_pas;
    unsigned m_restent = m_pas;
};

}  // namespace dao
