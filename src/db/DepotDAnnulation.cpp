#include "db/DepotDAnnulation.h"

#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>

namespace db {

std::string DepotDAnnulation::manquePour(std::int64_t octets) const {
    constexpr std::int64_t kMo = 1'000'000;
    const std::int64_t total = taille() + octets;
    if (total > kAuPlus) return "elle change environ " + std::to_string(total / kMo) + " Mo";
    if (total <= static_cast<std::int64_t>(kEnMemoire)) return {};
    std::error_code erreur;
    auto place = std::filesystem::space(m_dossier, erreur);
    if (erreur)  // it is made when it is needed
        place = std::filesystem::space(std::filesystem::path(m_dossier).parent_path(), erreur);
    if (erreur || place.available >= static_cast<std::uintmax_t>(total + kLaisseLibre)) return {};
    return "le disque n'a plus que " + std::to_string(place.available / kMo) + " Mo";
}

bool DepotDAnnulation::ajoute(std::string_view octets) {
    if (taille() + static_cast<std::int64_t>(octets.size()) > kAuPlus) return false;
    try {
        if (m_memoire.size() + octets.size() > kEnMemoire && !verse()) return false;
        if (octets.size() > kEnMemoire) return m_fichier->ajoute(octets);
        m_memoire.append(octets);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// Memory is empty then, and the file there.
bool DepotDAnnulation::verse() {
    if (!m_fichier) {
        if (!fichiers::assureDossierPrive(m_dossier)) return false;
        if (auto neuf = fichiers::FichierAnonyme::dans(m_dossier)) m_fichier.emplace(std::move(*neuf));
    }
    if (!m_fichier || m_fichier->placeLibre() < kLaisseLibre || !m_fichier->ajoute(m_memoire)) return false;
    m_memoire.clear();
    return true;
}

std::size_t DepotDAnnulation::lit(std::int64_t place, char* tampon, std::size_t octets) const {
    std::size_t lus = 0;
    if (place < surDisque()) {
        const auto ici =
            static_cast<std::size_t>(std::min<std::int64_t>(surDisque() - place, static_cast<std::int64_t>(octets)));
        lus = m_fichier->lit(place, tampon, ici);
        if (lus < ici) return lus;
        place += static_cast<std::int64_t>(lus);
    }
    const auto debut = static_cast<std::size_t>(place - surDisque());
    if (debut >= m_memoire.size()) return lus;
    return lus + m_memoire.copy(tampon + lus, octets - lus, debut);
}

}  // namespace db
