#pragma once

#include "Mesure.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include <execinfo.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

namespace bench {

// How long the program let no event through, gesture by gesture: a timer of a millisecond tells that it does, and a thread
// beside notes where the program is while it does not. One at a time; made by the thread that it watches.
class Surdite {
  public:
    explicit Surdite(bool piles) : m_piles(piles), m_surveille(pthread_self()) {
        m_montre.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_montre, &QTimer::timeout, [this] { note(); });
        m_montre.start(1);
        if (!piles) return;
        la() = this;
        Pile premiere;
        premiere.profondeur = backtrace(premiere.adresses.data(), kProfondeur);  // which loads what it needs
        signal(SIGUSR2, [](int) { la()->noteLaPile(); });
        m_garde = std::thread([this] { garde(); });
    }
    Surdite(const Surdite&) = delete;
    Surdite& operator=(const Surdite&) = delete;
    ~Surdite() {
        m_fini = true;
        if (m_garde.joinable()) m_garde.join();
    }

    // The longest stretch of what the gesture does, what it leaves for idle moments included, in milliseconds.
    template <typename Geste, typename Repos>
    double pireDe(Geste geste, Repos repos) {
        QCoreApplication::processEvents();
        m_pire = 0;
        m_nombre = 0;
        m_vue = maintenant();
        geste();
        repos();
        note();
        return m_pire;
    }
    // Where the program was, one address a line, one stack a paragraph: what addr2line takes.
    void ecritLesPiles() const {
        for (std::size_t i = 0; i < m_nombre; ++i) {
            backtrace_symbols_fd(m_notees[i].adresses.data(), m_notees[i].profondeur, STDERR_FILENO);
            static_cast<void>(!write(STDERR_FILENO, "\n", 1));
        }
    }

  private:
    static constexpr int kProfondeur = 48;
    static constexpr std::size_t kPiles = 40;
    static constexpr double kSourde = 60;  // milliseconds
    static constexpr std::chrono::milliseconds kPas{7};
    struct Pile {
        std::array<void*, kProfondeur> adresses{};
        int profondeur = 0;
    };

    static Surdite*& la() {
        static Surdite* celle = nullptr;
        return celle;
    }
    void note() {
        const double instant = maintenant();
        m_pire = std::max(m_pire, instant - m_vue.load());
        m_vue = instant;
    }
    void garde() const {
        while (!m_fini) {
            std::this_thread::sleep_for(kPas);
            if (maintenant() - m_vue > kSourde) pthread_kill(m_surveille, SIGUSR2);
        }
    }
    void noteLaPile() {
        if (m_nombre == kPiles) return;
        Pile& pile = m_notees[m_nombre++];
        pile.profondeur = backtrace(pile.adresses.data(), kProfondeur);
    }

    const bool m_piles;
    const pthread_t m_surveille;
    QTimer m_montre;
    std::atomic<double> m_vue = maintenant();
    std::atomic<bool> m_fini = false;
    double m_pire = 0;
    std::array<Pile, kPiles> m_notees;
    std::size_t m_nombre = 0;
    std::thread m_garde;
};

}  // namespace bench
