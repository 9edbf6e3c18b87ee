#pragma once

#include <functional>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace doubles {

[[noreturn]] inline void meurs() {
    kill(getpid(), SIGKILL);
    _exit(1);
}

// Does the work in a process of its own, which the work kills on its way (meurs). True when that came to pass.
inline bool meurtEnRoute(const std::function<void()>& travail) {
    const pid_t enfant = fork();
    if (enfant == 0) {
        travail();
        _exit(1);
    }
    int etat = 0;
    return enfant > 0 && waitpid(enfant, &etat, 0) == enfant && WIFSIGNALED(etat) && WTERMSIG(etat) == SIGKILL;
}

}  // namespace doubles
