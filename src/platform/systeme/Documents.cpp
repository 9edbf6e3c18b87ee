#include "platform/systeme/Documents.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace systeme {

namespace {

// In the started process, between fork and exec: system calls only. What exec could not do goes through `echec`, which
// closes by itself when it could.
[[noreturn]] void devient(char* const* arguments, int echec) {
    if (const int vide = open("/dev/null", O_RDWR); vide >= 0) dup2(vide, STDIN_FILENO);
    execvp(arguments[0], arguments);
    const char marque = 1;
    [[maybe_unused]] const ssize_t ignore = write(echec, &marque, 1);
    _exit(127);
}

// Starts a program that outlives this one. The process in between ends at once and is waited for here, so that nobody
// has to wait for the program itself and none stays behind as a zombie.
bool lanceDetache(char* const* arguments) {
    std::array<int, 2> tube{};
    if (pipe2(tube.data(), O_CLOEXEC) != 0) return false;
    const pid_t relais = fork();
    if (relais == 0) {
        setsid();
        const pid_t programme = fork();
        if (programme == 0) devient(arguments, tube[1]);
        _exit(programme < 0 ? 1 : 0);
    }
    close(tube[1]);
    int etat = 0;
    while (relais > 0 && waitpid(relais, &etat, 0) < 0 && errno == EINTR) {
    }
    char marque = 0;
    ssize_t recus = 0;
    while ((recus = read(tube[0], &marque, 1)) < 0 && errno == EINTR) {
    }
    close(tube[0]);
    return relais > 0 && recus == 0 && WIFEXITED(etat) && WEXITSTATUS(etat) == 0;
}

}  // namespace

bool DocumentsSysteme::ouvre(const std::string& adresseOuChemin) {
    if (adresseOuChemin.empty() || adresseOuChemin.find('\0') != std::string::npos) return false;
    // A file named like an option must not be read as one.
    std::string argument = adresseOuChemin.starts_with('-') ? "./" + adresseOuChemin : adresseOuChemin;
    std::string programme = "xdg-open";
    const std::array<char*, 3> arguments{programme.data(), argument.data(), nullptr};
    return lanceDetache(arguments.data());
}

}  // namespace systeme
