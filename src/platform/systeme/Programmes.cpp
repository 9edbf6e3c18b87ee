#include "platform/systeme/Programmes.h"

#include "platform/systeme/Processus.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sstream>

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {  // glibc 2.36 forgets to say so
#include <sys/pidfd.h>
}

namespace systeme {

namespace {

constexpr std::chrono::milliseconds kDelaiDeGrace{1000};

Lancement depuisErreur(int erreur) {
    switch (erreur) {
        case 0:
            return Lancement::Fait;
        case ENOENT:
        case ENOTDIR:
        case ELOOP:
        case ENAMETOOLONG:
            return Lancement::Introuvable;
        case EACCES:
        case EPERM:
        case EISDIR:
            return Lancement::Interdit;
        case ENOEXEC:
        case ELIBBAD:
        case EINVAL:
            return Lancement::PasUnProgramme;
        case ENOMEM:
        case EAGAIN:
            return Lancement::SansMemoire;
        default:
            return Lancement::Echoue;
    }
}

bool estExecutable(const std::string& chemin) {
    struct stat infos {};
    return stat(chemin.c_str(), &infos) == 0 && S_ISREG(infos.st_mode) && access(chemin.c_str(), X_OK) == 0;
}

// Found here and not by execvp, which hands what it cannot run to a shell. Empty when PATH has none; folders of PATH
// that depend on where we stand are passed over.
std::string dansPath(const std::string& nom) {
    const char* path = std::getenv("PATH");
    std::istringstream dossiers(path ? path : "/usr/local/bin:/usr/bin:/bin");
    for (std::string dossier; std::getline(dossiers, dossier, ':');)
        if (dossier.starts_with('/') && estExecutable(dossier + "/" + nom)) return dossier + "/" + nom;
    return "";
}

// Whole, since the started program changes its folder first.
std::string cheminDuProgramme(const std::string& programme) {
    if (programme.find('/') == std::string::npos) return programme.empty() ? "" : dansPath(programme);
    if (programme.starts_with('/')) return programme;
    std::array<char, PATH_MAX> ici{};
    return getcwd(ici.data(), ici.size()) ? std::string(ici.data()) + "/" + programme : programme;
}

// All that the started process needs, made before fork: afterwards it makes system calls only.
class Depart {
  public:
    explicit Depart(const Commande& commande)
        : m_arguments(commande.arguments),
          m_dossier(commande.dossier),
          m_chemin(m_arguments.empty() ? "" : cheminDuProgramme(m_arguments.front())) {
        for (std::string& argument : m_arguments)
            m_pointeurs.push_back(argument.data());
        m_pointeurs.push_back(nullptr);
    }

    // Why it cannot even be tried; 0 when it can.
    [[nodiscard]] int obstacle() const {
        const auto coupe = [](const std::string& texte) { return texte.find('\0') != std::string::npos; };
        if (coupe(m_dossier) || std::any_of(m_arguments.begin(), m_arguments.end(), coupe)) return EILSEQ;
        return m_chemin.empty() ? ENOENT : 0;
    }

    // Never returns; what could not be done goes into `echec`, which closes by itself when all could.
    [[noreturn]] void devient(int echec) const {
        close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
        std::signal(SIGPIPE, SIG_DFL);
        sigset_t aucun;
        sigemptyset(&aucun);
        sigprocmask(SIG_SETMASK, &aucun, nullptr);
        if (const int vide = open("/dev/null", O_RDWR | O_CLOEXEC); vide >= 0) dup2(vide, STDIN_FILENO);
        if (m_dossier.empty() || chdir(m_dossier.c_str()) == 0) execv(m_chemin.c_str(), m_pointeurs.data());
        const int erreur = errno;
        [[maybe_unused]] const ssize_t ignore = write(echec, &erreur, sizeof erreur);
        _exit(127);
    }

  private:
    std::vector<std::string> m_arguments;
    std::string m_dossier, m_chemin;
    std::vector<char*> m_pointeurs;
};

// What failed on the way to the program, 0 when nothing did: waits until the other side has closed the pipe, by its start
// or by its end.
int erreurRecue(Tube& tube) {
    tube.fermeEcriture();
    int erreur = 0;
    while (read(tube.lecture(), &erreur, sizeof erreur) < 0 && errno == EINTR) {
    }
    return erreur;
}

int lanceDetache(const Depart& depart) {
    Tube tube;
    if (tube.erreur() != 0) return tube.erreur();
    const int erreur = detache([&] { depart.devient(tube.ecriture()); });
    return erreur != 0 ? erreur : erreurRecue(tube);
}

// A child of ours, first of a group of its own, seen through a descriptor that becomes readable at its end. It is only
// taken leave of (waitpid) at the very last: until then its number names nobody else.
class Enfant final : public ProgrammeEnCours {
  public:
    Enfant(pid_t processus, int descripteur) : m_processus(processus), m_descripteur(descripteur) {}
    Enfant(const Enfant&) = delete;
    Enfant& operator=(const Enfant&) = delete;
    ~Enfant() override {
        if (!attendsFin({})) termine();
        recueille(m_processus);
        close(m_descripteur);
    }

    bool attendsFin(std::chrono::milliseconds auPlus) override {
        return devientLisible(m_descripteur, std::chrono::steady_clock::now() + auPlus);
    }

    void termine() override {
        kill(-m_processus, SIGTERM);
        const bool finie = attendsFin(kDelaiDeGrace);
        kill(-m_processus, SIGKILL);  // and whoever of its group did not follow it
        while (!finie && !attendsFin(kDelaiDeGrace)) {
        }
    }

  private:
    const pid_t m_processus;
    const int m_descripteur;
};

}  // namespace

Lancement ProgrammesSysteme::lance(const Commande& commande) {
    const Depart depart(commande);
    const int obstacle = depart.obstacle();
    return depuisErreur(obstacle != 0 ? obstacle : lanceDetache(depart));
}

ProgrammeLance ProgrammesSysteme::lancePourAttendre(const Commande& commande) {
    const Depart depart(commande);
    Tube tube;
    if (const int obstacle = depart.obstacle() != 0 ? depart.obstacle() : tube.erreur(); obstacle != 0)
        return {depuisErreur(obstacle), nullptr};
    const pid_t processus = fork();
    if (processus < 0) return {depuisErreur(errno), nullptr};
    if (processus == 0) {
        setsid();
        depart.devient(tube.ecriture());
    }
    int erreur = erreurRecue(tube);
    const int descripteur = erreur == 0 ? pidfd_open(processus, 0) : -1;
    if (descripteur >= 0) return {Lancement::Fait, std::make_unique<Enfant>(processus, descripteur)};
    if (erreur == 0) {
        erreur = errno;
        kill(-processus, SIGKILL);
    }
    recueille(processus);
    return {depuisErreur(erreur), nullptr};
}

}  // namespace systeme
