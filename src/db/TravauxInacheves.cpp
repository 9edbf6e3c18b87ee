#include "db/TravauxInacheves.h"

#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Verrou.h"
#include "util/NomsFichiers.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

// Whoever converts a base holds its lock. One that is compacted does not open anywhere else, and the file of one that is
// made stands there for no time.
bool estEnUsage(const std::string& travail) {
    if (!travail.ends_with(kConversion)) return false;
    return !fichiers::Verrou(travail.substr(0, travail.size() - kConversion.size())).estPris();
}

bool estUnReste(const std::string& dossier, const std::string& nom) {
    const bool deTravail = nom == kCompactageIci || nom.ends_with(kCreation) || nom.ends_with(kConversion) ||
                           nom.ends_with(".mdb" + std::string(kCompactage));
    std::error_code ignoree;
    return deTravail && fs::is_regular_file(fs::symlink_status(dossier + nom, ignoree)) && estInacheve(dossier + nom) &&
           !estEnUsage(dossier + nom);
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
           (lu.starts_with(kSignature) && identifiant == dao::DBEngine::kIdentifiantApplication);
}

void effaceTravauxInacheves(const std::string& dossier) {
    const std::string lieu = util::avecSeparateur(dossier);
    for (const std::string& nom : fichiers::listeNoms(lieu))
        if (estUnReste(lieu, nom))
            for (const char* suite : {"-journal", ""})
                fichiers::supprime(lieu + nom + suite);
}

}  // namespace db
