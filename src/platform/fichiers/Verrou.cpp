#include "platform/fichiers/Verrou.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fichiers {

Verrou::Verrou(const std::string& chemin)
    : m_descripteur(open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)),
      m_pris(m_descripteur >= 0 && (flock(m_descripteur, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)) {}

Verrou::~Verrou() {
    if (m_descripteur >= 0) close(m_descripteur);
}

}  // namespace fichiers
