#include "app/Ouvertures.h"

#include "app/Depot.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

#include <unistd.h>

namespace app {

namespace {

constexpr std::int64_t kOctetsDUneDemande = 16 << 20;  // the system hands a program less
constexpr const char* kExtension = "demande";

// Requests are served in the order in which they came.
std::string nomNeuf() {
    const auto depuis = std::chrono::system_clock::now().time_since_epoch();
    const std::string rang = std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(depuis).count());
    return std::string(20 - std::min<std::size_t>(20, rang.size()), '0') + rang + "-" + std::to_string(getpid()) + "." +
           kExtension;
}

std::vector<std::string> demandes(const std::string& dossier) {
    std::vector<std::string> noms = fichiers::listeFichiers(dossier);
    std::erase_if(noms, [](const std::string& nom) { return fichiers::extension(nom) != kExtension; });
    return noms;
}

// A path holds any byte but zero, which ends each of them here.
void decoupe(const std::string& octets, std::vector<std::string>& chemins) {
    for (std::size_t debut = 0, fin; (fin = octets.find('\0', debut)) != std::string::npos; debut = fin + 1)
        if (fin > debut) chemins.push_back(octets.substr(debut, fin - debut));
}

}  // namespace

std::string dossierDesDemandes(const std::string& dossierProgramme) {
    const std::string dossier = util::avecSeparateur(dossierProgramme) + ".ambrelis.demandes";
    fichiers::assureDossierPrive(dossier);
    return dossier + "/";
}

bool demandeOuverture(const std::string& dossierProgramme, const std::vector<std::string>& chemins) {
    std::string octets;
    for (const std::string& chemin : chemins)
        octets += chemin + '\0';
    return fichiers::remplace(dossierDesDemandes(dossierProgramme) + nomNeuf(), octets);
}

bool ouvertureDemandee(const Contexte& c) {
    return !demandes(dossierDesDemandes(c.chemins.dossier)).empty();
}

void ouvreCeQuiEstDemande(const Contexte& c) {
    const std::string dossier = dossierDesDemandes(c.chemins.dossier);
    std::vector<std::string> chemins;
    for (const std::string& nom : demandes(dossier)) {
        const auto octets = fichiers::litSansLien(dossier + nom, kOctetsDUneDemande);
        if (fichiers::supprime(dossier + nom) && octets) decoupe(*octets, chemins);
    }
    if (chemins.empty()) return;
    importeFichesDeposees(c, chemins);
}

}  // namespace app
