#include "platform/systeme/Volumes.h"

#include "platform/systeme/Processus.h"
#include "platform/systeme/TableMontages.h"

#include <array>
#include <fstream>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <sys/statfs.h>
#include <sys/syscall.h>
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

// A question asked to one volume.
class Question {
  public:
    explicit Question(const std::string& racine) {
        if (m_tube.erreur() == 0) static_cast<void>(detache([&] { sonde(racine.c_str(), m_tube.ecriture()); }));
        m_tube.fermeEcriture();
    }

    [[nodiscard]] bool obtientReponse(Temps::time_point limite) const {
        char signe = 0;
        return m_tube.erreur() == 0 && devientLisible(m_tube.lecture(), limite) &&
               read(m_tube.lecture(), &signe, 1) == 1;
    }

  private:
    Tube m_tube;
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
