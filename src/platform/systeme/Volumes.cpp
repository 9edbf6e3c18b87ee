#include "platform/systeme/Volumes.h"

#include "platform/systeme/TableMontages.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <poll.h>
#include <sys/statfs.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace systeme {

namespace {

using Temps = std::chrono::steady_clock;

constexpr unsigned kViePlusLongue = 60;  // seconds

// In the process that asks: reads the folder itself, since a mere look at it may be answered from memory. As it may stay
// behind, it keeps nothing of ours, the lock of the program folder least of all.
[[noreturn]] void sonde(const char* racine, int reponse) {
    alarm(kViePlusLongue);
    dup2(reponse, STDIN_FILENO);
    close_range(STDIN_FILENO + 1, ~0U, 0);
    std::array<char, 4096> entrees{};
    struct statfs infos {};
    const int dossier = open(racine, O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    const bool vivant = dossier >= 0 && fstatfs(dossier, &infos) == 0 &&
                        syscall(SYS_getdents64, dossier, entrees.data(), entrees.size()) >= 0;
    const char signe = 1;
    if (vivant && write(STDIN_FILENO, &signe, 1) != 1) _exit(1);
    _exit(0);
}

// A question asked to one volume. The process that asks is nobody's child, so nobody has to wait for it either.
class Question {
  public:
    explicit Question(const std::string& racine) {
        std::array<int, 2> tube{};
        if (pipe2(tube.data(), O_CLOEXEC) != 0) return;
        m_lecture = tube[0];
        const pid_t relais = fork();
        if (relais == 0) {
            setsid();
            const pid_t sondeur = fork();
            if (sondeur == 0) sonde(racine.c_str(), tube[1]);
            _exit(0);
        }
        close(tube[1]);
        while (relais > 0 && waitpid(relais, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;
    ~Question() {
        if (m_lecture >= 0) close(m_lecture);
    }

    [[nodiscard]] bool obtientReponse(Temps::time_point limite) const {
        if (m_lecture < 0) return false;
        pollfd attendu{m_lecture, POLLIN, 0};
        for (;;) {
            const auto reste = std::chrono::duration_cast<std::chrono::milliseconds>(limite - Temps::now()).count();
            const int prets = poll(&attendu, 1, reste > 0 ? static_cast<int>(reste) : 0);
            if (prets < 0 && errno == EINTR) continue;
            char signe = 0;
            return prets > 0 && read(m_lecture, &signe, 1) == 1;
        }
    }

  private:
    int m_lecture = -1;
};

}  // namespace

std::vector<Volume> VolumesSysteme::liste() {
    std::ifstream table(m_table, std::ios::binary);
    const std::vector<Montage> montages = litMontages(std::string(std::istreambuf_iterator<char>(table), {}));
    std::vector<std::unique_ptr<Question>> questions;
    for (const Montage& montage : montages)
        questions.push_back(montage.reseau && !montage.disquette ? std::make_unique<Question>(montage.racine)
                                                                 : nullptr);

    const auto limite = Temps::now() + m_patience;
    std::vector<Volume> volumes;
    for (std::size_t i = 0; i < montages.size(); ++i)
        volumes.push_back(
            {montages[i].racine, questions[i] ? questions[i]->obtientReponse(limite) : !montages[i].disquette});
    return volumes;
}

}  // namespace systeme
