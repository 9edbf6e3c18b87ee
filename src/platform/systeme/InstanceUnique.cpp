#include "platform/systeme/InstanceUnique.h"

#include "util/NomsFichiers.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace systeme {

namespace {

// A started program must not inherit the lock: it could outlive this one.
constexpr int kModeCommun = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

int ouvreVerrou(const std::string& chemin) {
    const int descripteur = open(chemin.c_str(), O_RDWR | O_CREAT | kModeCommun, 0666);
    // Another user's file: reading it is enough to lock it.
    return descripteur >= 0 ? descripteur : open(chemin.c_str(), O_RDONLY | kModeCommun);
}

}  // namespace

InstanceUnique::~InstanceUnique() {
    if (m_descripteur >= 0) close(m_descripteur);
}

bool InstanceUnique::prends(const std::string& dossierProgramme) {
    if (m_descripteur >= 0) close(m_descripteur);
    m_descripteur = ouvreVerrou(util::avecSeparateur(dossierProgramme) + ".ambrelis.verrou");
    if (m_descripteur < 0) return true;
    // Only "held by another" refuses; a file system that knows no locks does not.
    return flock(m_descripteur, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace systeme
