#include "platform/fichiers/Restes.h"

#include "platform/fichiers/Descripteur.h"
#include "util/NomsFichiers.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <ctime>
#include <optional>
#include <vector>

#include <sys/file.h>

namespace fichiers {

namespace {

constexpr std::string_view kDebut = ".ambrelis-";
constexpr std::string_view kFin = ".tmp";
constexpr std::string_view kJournal = "-journal";
constexpr std::time_t kPlusLongueEcriture = 3600;  // seconds without a byte: nobody writes it any more

// ".ambrelis-NUMBER-NUMBER-NUMBER.tmp": the number of the process that made it; nothing for any other name.
std::optional<pid_t> auteur(std::string_view nom) {
    if (!nom.starts_with(kDebut) || !nom.ends_with(kFin)) return std::nullopt;
    nom.remove_prefix(kDebut.size());
    nom.remove_suffix(kFin.size());
    if (nom.find_first_not_of("0123456789-") != std::string_view::npos) return std::nullopt;
    if (std::ranges::count(nom, '-') != 2 || nom.ends_with('-') || nom.find("--") != std::string_view::npos)
        return std::nullopt;
    pid_t processus = 0;
    const auto lu = std::from_chars(nom.data(), nom.data() + nom.size(), processus);
    return lu.ec == std::errc() && processus > 0 ? std::optional(processus) : std::nullopt;
}

bool estVivant(pid_t processus) {
    return kill(processus, 0) == 0 || errno == EPERM;
}

// Whoever holds the lock lives, here or on another machine. Between its making and its lock, and where the file system
// knows no locks, a file is young; the number may by now be that of any other program.
bool estEnUsage(const Descripteur& fichier, const struct stat& infos, pid_t processus) {
    const bool prenable = flock(fichier.numero(), LOCK_EX | LOCK_NB) == 0;
    if (!prenable && errno == EWOULDBLOCK) return true;
    if (std::time(nullptr) - infos.st_mtime >= kPlusLongueEcriture) return false;
    return !prenable || (processus != getpid() && estVivant(processus));
}

bool supprimeReste(const std::string& chemin, pid_t processus) {
    const Descripteur fichier(chemin, O_RDONLY | O_NOFOLLOW);
    const auto infos = fichier.infos();
    if (!infos || infos->st_uid != geteuid()) return false;
    return !estEnUsage(fichier, *infos, processus) && unlink(chemin.c_str()) == 0;
}

// The journal of a base under such a name: once that base is gone, nobody's.
bool supprimeJournal(const std::string& dossier, std::string_view nom) {
    if (!nom.ends_with(kJournal)) return false;
    const std::string_view base = nom.substr(0, nom.size() - kJournal.size());
    if (!auteur(base)) return false;
    struct stat infos {};
    const std::string chemin = util::avecSeparateur(dossier) + std::string(nom);
    if (lstat((util::avecSeparateur(dossier) + std::string(base)).c_str(), &infos) == 0) return false;
    const bool sien = lstat(chemin.c_str(), &infos) == 0 && S_ISREG(infos.st_mode) && infos.st_uid == geteuid();
    return sien && unlink(chemin.c_str()) == 0;
}

}  // namespace

std::string nomProvisoire() {
    static unsigned compteur = 0;
    struct timespec instant {};
    clock_gettime(CLOCK_REALTIME, &instant);
    return std::string(kDebut) + std::to_string(getpid()) + "-" + std::to_string(instant.tv_nsec) + "-" +
           std::to_string(++compteur) + std::string(kFin);
}

// A file system without locks is no reason not to write.
void marqueEnUsage(int descripteur) {
    static_cast<void>(flock(descripteur, LOCK_EX | LOCK_NB));
}

int supprimeRestes(const std::string& dossier) {
    const std::vector<std::string> noms = listeNoms(dossier);
    std::vector<std::pair<std::string, pid_t>> restes;
    for (const std::string& nom : noms)
        if (const auto processus = auteur(nom)) restes.emplace_back(util::avecSeparateur(dossier) + nom, *processus);
    auto partis =
        std::ranges::count_if(restes, [](const auto& reste) { return supprimeReste(reste.first, reste.second); });
    partis += std::ranges::count_if(noms, [&](const std::string& nom) { return supprimeJournal(dossier, nom); });
    return static_cast<int>(partis);
}

}  // namespace fichiers
