#include "platform/systeme/DemandesDeFin.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>

#include <fcntl.h>
#include <unistd.h>

namespace systeme {

namespace {

constexpr std::array kSignaux{SIGTERM, SIGINT, SIGHUP};

// What a handler may touch: it only writes a byte.
std::array<int, 2> g_tube{-1, -1};
pid_t g_processus = 0;
std::array<struct sigaction, kSignaux.size()> g_avant;

// A process that we have just started is still us until it becomes its program: its signals are not ours.
void note(int) {
    const int erreur = errno;
    if (getpid() == g_processus) [[maybe_unused]]
        const ssize_t ignore = write(g_tube[1], "", 1);
    errno = erreur;
}

}  // namespace

DemandesDeFin::DemandesDeFin() {
    if (pipe2(g_tube.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        g_tube = {-1, -1};
        return;
    }
    g_processus = getpid();
    struct sigaction action {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    sigfillset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignaux.size(); ++i) {
        sigaction(kSignaux[i], nullptr, &g_avant[i]);
        if (g_avant[i].sa_handler != SIG_IGN) sigaction(kSignaux[i], &action, nullptr);
    }
}

DemandesDeFin::~DemandesDeFin() {
    if (g_tube[0] < 0) return;
    for (std::size_t i = 0; i < kSignaux.size(); ++i)
        sigaction(kSignaux[i], &g_avant[i], nullptr);
    for (int& bout : g_tube) {
        close(bout);
        bout = -1;
    }
}

int DemandesDeFin::descripteur() const {
    return g_tube[0];
}

bool DemandesDeFin::recue() {
    bool recue = false;
    std::array<char, 64> octets;
    while (g_tube[0] >= 0 && read(g_tube[0], octets.data(), octets.size()) > 0)
        recue = true;
    return recue;
}

}  // namespace systeme
