#include "platform/fichiers/FichierAnonyme.h"

#include "platform/fichiers/Descripteur.h"
#include "platform/fichiers/Restes.h"

#include <sys/statvfs.h>

namespace fichiers {

// Not O_TMPFILE, which some file systems do not know: between the two calls a killed program leaves an empty file under a
// name that supprimeRestes knows.
std::optional<FichierAnonyme> FichierAnonyme::dans(const std::string& dossier) {
    const Descripteur ouvert = ouvreDossierReel(dossier);
    if (!ouvert.estOuvert()) return std::nullopt;
    const std::string nom = nomProvisoire();
    const int numero = openat(ouvert.numero(), nom.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (numero < 0) return std::nullopt;
    unlinkat(ouvert.numero(), nom.c_str(), 0);
    return FichierAnonyme(numero);
}

FichierAnonyme::~FichierAnonyme() {
    if (m_numero >= 0) close(m_numero);
}

bool FichierAnonyme::ajoute(std::string_view octets) {
    if (lseek(m_numero, m_taille, SEEK_SET) < 0 || !ecritTout(m_numero, octets)) return false;
    m_taille += static_cast<std::int64_t>(octets.size());
    return true;
}

std::size_t FichierAnonyme::lit(std::int64_t place, char* tampon, std::size_t octets) const {
    std::size_t lus = 0;
    while (lus < octets) {
        const ssize_t nombre =
            pread(m_numero, tampon + lus, octets - lus, static_cast<off_t>(place + static_cast<std::int64_t>(lus)));
        if (nombre < 0 && errno == EINTR) continue;
        if (nombre <= 0) break;
        lus += static_cast<std::size_t>(nombre);
    }
    return lus;
}

std::int64_t FichierAnonyme::placeLibre() const {
    struct statvfs infos {};
    if (fstatvfs(m_numero, &infos) != 0) return 0;
    return static_cast<std::int64_t>(infos.f_bavail) * static_cast<std::int64_t>(infos.f_frsize);
}

}  // namespace fichiers
