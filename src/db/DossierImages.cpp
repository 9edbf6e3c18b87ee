#include "db/DossierImages.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <algorithm>

namespace db {

namespace {

constexpr std::size_t kCheminMax = 4096;  // bytes; the system's own limit

bool estDeWindows(const std::string& chemin) {
    return util::aUneLettreDeLecteur(chemin) || chemin.starts_with('\\');
}

std::optional<std::string> resoutDeWindows(const std::string& chemin, const Chemins& chemins) {
    if (auto sous = fichiers::trouveParLaFin(chemins.dossier, chemin, fichiers::dossierExiste)) return sous;
    return fichiers::trouveParLaFin(fichiers::dossierDe(fichiers::absolu(chemins.base)), chemin,
                                    fichiers::dossierExiste);
}

// What stands there under the name as written is that folder; what does not stand there yet has only our separators.
std::string avecNosSeparateurs(std::string chemin) {
    if (chemin.find('\\') == std::string::npos || fichiers::dossierExiste(chemin)) return chemin;
    std::replace(chemin.begin(), chemin.end(), '\\', '/');
    return chemin;
}

// The folder's path from the root; nothing for what leads nowhere on this machine.
std::optional<std::string> resout(const std::string& texte, const Chemins& chemins) {
    const bool impossible =
        texte.size() >= kCheminMax || texte.find('\0') != std::string::npos || texte.find("://") != std::string::npos;
    if (impossible) return std::nullopt;
    if (estDeWindows(texte)) return resoutDeWindows(texte, chemins);
    return fichiers::absolu(avecNosSeparateurs(fichiers::cheminTape(texte, chemins.dossier)));
}

}  // namespace

std::optional<std::string> refusDossierImages(const Contexte& c) {
    std::string& texte = c.stockage.Text4.Text;
    if (texte.empty()) texte = c.chemins.dansDossier("Images");
    const auto resolu = resout(texte, c.chemins);
    if (!resolu)
        return "Le dossier des images " + texte.substr(0, kCheminMax) +
               " n'existe pas sur cet ordinateur : choisissez-en un autre !";
    if (auto refus = refusDansTmp(*resolu, c.chemins)) return refus;
    texte = *resolu;
    return std::nullopt;
}

std::string dossierImages(const Contexte& c) {
    return refusDossierImages(c) ? "" : util::avecSeparateur(c.stockage.Text4.Text);
}

std::optional<std::string> refusDansTmp(const std::string& dossier, const Chemins& chemins) {
    if (!chemins.estDansTmp(dossier)) return std::nullopt;
    return "Le dossier des images ne peut pas être " + dossier +
           " : Ambrelis efface ce que contient « Tmp » chaque fois qu'il se ferme.";
}

}  // namespace db
