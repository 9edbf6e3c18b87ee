#include "app/Reglages.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace app {

namespace {

constexpr std::size_t kNombreLignes = 8;
constexpr std::size_t kCheminMax = 4096;          // bytes; the system's own limit
constexpr int kTailleMax = 16384 * 15;            // twips; no screen is larger
constexpr std::int64_t kFichierMax = 64LL << 20;  // bytes

using Lignes = std::array<std::string, kNombreLignes>;

// The first lines, without their ends (CR LF, LF or CR); those missing, and those too long to be a value, are empty.
// Each is decoded by itself: bytes of another encoding in one line leave the others readable.
Lignes premieresLignes(std::string_view octets) {
    if (util::commencePar(octets, "\xEF\xBB\xBF")) octets.remove_prefix(3);
    Lignes lignes;
    std::size_t place = 0;
    for (std::string& ligne : lignes) {
        const std::string_view lue = util::ligneSuivante(octets, place);
        if (lue.size() <= kCheminMax) ligne = util::decodeTexteExterne(lue);
    }
    return lignes;
}

bool estAbsolu(std::string_view chemin) {
    return util::aUneLettreDeLecteur(chemin) || chemin[0] == '/' || chemin[0] == '~' || chemin[0] == '\\' ||
           chemin.find("://") != std::string_view::npos;
}

std::string litChemin(std::string_view ligne, const std::string& dossier) {
    if (ligne.empty() || ligne.find('\0') != std::string_view::npos) return {};
    if (ligne[0] == '~') return fichiers::cheminTape(ligne, dossier);
    return estAbsolu(ligne) ? std::string(ligne) : dossier + std::string(ligne);
}

std::string texteChemin(const std::string& chemin, const std::string& dossier) {
    if (chemin.find_first_of("\r\n") != std::string::npos) return {};  // it would shift every line after it
    const bool dedans = chemin.size() > dossier.size() && util::commencePar(chemin, dossier);
    const std::string relatif = dedans ? chemin.substr(dossier.size()) : chemin;
    const bool seRelit = !estAbsolu(relatif) && util::decodeTexteExterne(relatif) == relatif;
    return dedans && !seRelit ? chemin : relatif;
}

bool tailleSensee(int twips) {
    return twips > 0 && twips <= kTailleMax;
}

}  // namespace

Reglages litReglages(std::string_view texte, const std::string& dossier) {
    const Lignes lignes = premieresLignes(texte);
    const auto nombre = [&](std::size_t ligne) { return util::valEntier(lignes[ligne - 1]); };
    Reglages lus;
    lus.stockage = nombre(1) == 1 ? 1 : 0;
    lus.dossierImages = litChemin(lignes[1], dossier);
    if (tailleSensee(nombre(3)) && tailleSensee(nombre(4))) {
        lus.largeur = nombre(3);
        lus.hauteur = nombre(4);
    }
    lus.tri = nombre(5) > 0 ? nombre(5) : 0;
    lus.base = litChemin(lignes[5], dossier);
    lus.lancerConnexion = nombre(7) == 1;
    lus.statistiques = nombre(8) == 1;
    return lus;
}

std::string texteReglages(const Reglages& reglages, const std::string& dossier) {
    const std::array<std::string, kNombreLignes> lignes{
        reglages.stockage == 0 ? "0" : "1",   texteChemin(reglages.dossierImages, dossier),
        std::to_string(reglages.largeur),     std::to_string(reglages.hauteur),
        std::to_string(reglages.tri),         texteChemin(reglages.base, dossier),
        reglages.lancerConnexion ? "1" : "0", reglages.statistiques ? "1" : "0",
    };
    std::string texte;
    for (const std::string& ligne : lignes)
        texte += ligne + '\n';
    return texte;
}

std::optional<Reglages> chargeReglages(const std::string& chemin, const std::string& dossier) {
    const std::optional<std::string> octets = fichiers::lit(chemin, kFichierMax);
    if (!octets) return std::nullopt;
    return litReglages(*octets, dossier);
}

}  // namespace app
