#pragma once

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pannes {

inline constexpr unsigned kPatience = 120;  // seconds: only a program that hangs takes so long

// A process of its own does the work; what it wrote, and how it ended when that was not by itself.
struct Issue {
    std::string texte;
    int signal = 0;
};
class Enfant {
  public:
    explicit Enfant(const std::function<void(std::FILE*)>& travail) {
        int bouts[2];
        if (pipe(bouts) != 0) throw std::runtime_error("no pipe");
        std::fflush(nullptr);
        m_processus = fork();
        if (m_processus == 0) {
            close(bouts[0]);
            alarm(kPatience);
            std::FILE* sortie = fdopen(bouts[1], "w");
            try {
                travail(sortie);
            } catch (const std::exception& erreur) {
                std::fprintf(sortie, "thrown: %s\n", erreur.what());
            }
            std::fflush(sortie);
            _exit(0);
        }
        close(bouts[1]);
        m_sortie = bouts[0];
    }
    void tue() const { kill(m_processus, SIGKILL); }
    Issue attends() {
        Issue issue;
        char tampon[4096];
        for (ssize_t lus = 0; (lus = read(m_sortie, tampon, sizeof tampon)) > 0;)
            issue.texte.append(tampon, static_cast<std::size_t>(lus));
        close(m_sortie);
        int etat = 0;
        waitpid(m_processus, &etat, 0);
        if (WIFSIGNALED(etat)) issue.signal = WTERMSIG(etat);
        return issue;
    }

  private:
    pid_t m_processus = -1;
    int m_sortie = -1;
};

}  // namespace pannes
