#include "platform/systeme/Processus.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace systeme {

Tube::Tube() : m_erreur(pipe2(m_bouts.data(), O_CLOEXEC) == 0 ? 0 : errno) {}

Tube::~Tube() {
    for (const int bout : m_bouts)
        if (bout >= 0) close(bout);
}

void Tube::fermeEcriture() {
    if (const int bout = std::exchange(m_bouts[1], -1); bout >= 0) close(bout);
}

bool devientLisible(int descripteur, std::chrono::steady_clock::time_point limite) {
    using std::chrono::milliseconds;
    pollfd attendu{descripteur, POLLIN, 0};
    for (;;) {
        const auto reste = std::chrono::ceil<milliseconds>(limite - std::chrono::steady_clock::now()).count();
        const int prets = poll(&attendu, 1, static_cast<int>(std::clamp<milliseconds::rep>(reste, 0, INT_MAX)));
        if (prets >= 0 || errno != EINTR) return prets > 0;
    }
}

int recueille(pid_t processus) {
    int etat = 0;
    while (waitpid(processus, &etat, 0) < 0 && errno == EINTR) {
    }
    return etat;
}

// The process in between ends at once, and is waited for here.
int detache(const std::function<void()>& suite) {
    const pid_t relais = fork();
    if (relais < 0) return errno;
    if (relais == 0) {
        setsid();
        const pid_t seul = fork();
        if (seul == 0) suite();
        _exit(seul < 0 ? errno : 0);
    }
    return WEXITSTATUS(recueille(relais));
}

}  // namespace systeme
