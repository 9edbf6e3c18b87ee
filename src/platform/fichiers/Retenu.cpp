#include "platform/fichiers/Retenu.h"

#include <fcntl.h>
#include <unistd.h>

namespace fichiers {

Retenu::Retenu(const std::string& chemin)
    : m_descripteur(open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}

Retenu::~Retenu() {
    if (m_descripteur >= 0) close(m_descripteur);
}

}  // namespace fichiers
