#include "db/TravauxInacheves.h"

#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Verrou.h"
#include "platform/jet/LecteurJet.h"
#include "util/NomsFichiers.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kJournal = "-journal";

// Whoever converts a base holds its lock, and who writes a Jet base that of the file itself. One that is compacted does not open anywhere else, and the file of one that is
// made stands there for no time.
bool estEnUsage(const std::string& travail) {
    if (travail.ends_with(kVersJet)) return !fichiers::Verrou(travail).estPris();
    if (!travail.ends_with(kConversion)) return false;
    return !fichiers::Verrou(travail.substr(0, travail.size() - kConversion.size())).estPris();
}

bool estDeTravail(std::string_view nom) {
    return nom == kCompactageIci || nom.ends_with(kCreation) || nom.ends_with(kConversion) || nom.ends_with(kVersJet) ||
           nom.ends_with(".mdb" + std::string(kCompactage));
}

// The file may have gone before its journal.
bool estUnReste(const std::string& travail) {
    std::error_code ignoree;
    const fs::file_status etat = fs::symlink_status(travail, ignoree);
    if (fs::exists(etat) && (!fs::is_regular_file(etat) || !estInacheve(travail))) return false;
    return !estEnUsage(travail);
}

}  // namespace

bool estInacheve(const std::string& travail) {
    static constexpr std::string_view kSignature("SQLite format 3\0", 16);
    static constexpr std::size_t kPlaceIdentifiant = 68;
    std::array<char, 72> entete{};
    std::ifstream fichier(travail, std::ios::binary);
    if (!fichier || !fs::is_regular_file(travail)) return false;
    fichier.read(entete.data(), entete.size());
    const std::string_view lu(entete.data(), entete.size());
    std::uint32_t identifiant = 0;
    for (const char c : lu.substr(kPlaceIdentifiant))
        identifiant = identifiant << 8 | static_cast<unsigned char>(c);
    return lu.find_first_not_of('\0') == std::string_view::npos ||
           (lu.starts_with(kSignature) && identifiant == dao::DBEngine::kIdentifiantApplication) ||
           (travail.ends_with(kVersJet) && jet::estBaseJet(travail));
}

void effaceTravauxInacheves(const std::string& dossier) {
    const std::string lieu = util::avecSeparateur(dossier);
    for (std::string nom : fichiers::listeNoms(lieu)) {
        if (nom.ends_with(kJournal)) nom.erase(nom.size() - kJournal.size());
        if (!estDeTravail(nom) || !estUnReste(lieu + nom)) continue;
        fichiers::supprime(lieu + nom + std::string(kJournal));
        fichiers::supprime(lieu + nom);
    }
}

}  // namespace db
