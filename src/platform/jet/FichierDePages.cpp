#include "platform/jet/FichierDePages.h"

#include "platform/jet/EcrivainJet.h"
#include "platform/jet/OctetsEcrits.h"

#include <utility>

namespace jet::interne {

namespace {

constexpr std::size_t kTampon = 1 << 20;

}  // namespace

FichierDePages::FichierDePages(const std::string& chemin, std::function<void()> souffle)
    : m_chemin(chemin), m_souffle(std::move(souffle)), m_tampon(kTampon) {
    m_flux.rdbuf()->pubsetbuf(m_tampon.data(), static_cast<std::streamsize>(m_tampon.size()));
    m_flux.open(chemin, std::ios::binary | std::ios::in | std::ios::out);
    if (!m_flux) echoue();
}

std::uint32_t FichierDePages::nouvelle() {
    if (m_nombre >= kOctetsMax / kTaillePage)
        throw ErreurJet("La base dépasserait 2 Go, ce qu'un fichier Jet ne peut pas tenir.");
    return m_nombre++;
}

void FichierDePages::ecrit(std::uint32_t numero, std::string_view page) {
    if (numero != m_place) m_flux.seekp(static_cast<std::streamoff>(numero) * static_cast<long>(kTaillePage));
    m_flux.write(page.data(), static_cast<std::streamsize>(page.size()));
    m_place = numero + 1;
    if (!m_flux) echoue();
    if (m_souffle) m_souffle();
}

void FichierDePages::ferme() {
    m_flux.close();
    if (!m_flux) echoue();
}

void FichierDePages::echoue() const {
    throw ErreurJet("Le fichier \"" + m_chemin + "\" ne peut pas être écrit (Disque plein/Lecture seule ?).");
}

}  // namespace jet::interne
