#include "acquire/AncienneInstallation.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace acquire {

namespace {

constexpr const char* kReglages = "Ambrelis.ini";
constexpr std::size_t kLigneImages = 2;
constexpr std::size_t kLigneBase = 6;
constexpr std::int64_t kTailleMaxReglages = 1 << 20;  // bytes

std::string ligne(const std::vector<std::string>& lignes, std::size_t numero) {
    return numero <= lignes.size() ? lignes[numero - 1] : "";
}

using Examen = bool (*)(const std::string&);  // is it one of those looked for?

std::optional<std::string> siCEstLui(const std::string& chemin, Examen examen) {
    const auto trouve = fichiers::trouve(chemin);
    return trouve && examen(*trouve) ? trouve : std::nullopt;
}

// What the settings name, or nothing.
std::optional<std::string> nomme(const std::string& dossier, const std::string& chemin, Examen examen) {
    if (chemin.starts_with('/'))
        if (auto trouve = siCEstLui(chemin, examen)) return trouve;
    return fichiers::trouveParLaFin(dossier, chemin, examen);
}

// An ordinary file: a pipe would never end.
bool estUnFichier(const std::string& chemin) {
    return fichiers::longueur(chemin) >= 0;
}

struct Recherche {
    std::string trouve;
    std::string absent;  // what was named, and is not there
};

Recherche cherche(const std::string& dossier, const std::string& nommee, const char* habituelle, Examen examen) {
    if (nommee.empty()) return {siCEstLui(dossier + habituelle, examen).value_or(""), ""};
    if (const auto trouve = nomme(dossier, fichiers::cheminTape(nommee, ""), examen)) return {*trouve, ""};
    return {"", nommee};
}

// None where there is no such file, or a file that no program has written.
std::vector<std::string> reglages(const std::string& chemin) {
    if (fichiers::longueur(chemin) > kTailleMaxReglages) return {};
    return fichiers::litLignes(chemin, kLigneBase).value_or(std::vector<std::string>());
}

}  // namespace

AncienneInstallation AncienneInstallation::dans(const std::string& dossier) {
    const std::string racine = util::avecSeparateur(dossier);
    const std::vector<std::string> lignes = reglages(racine + kReglages);
    const Recherche base = cherche(racine, ligne(lignes, kLigneBase), "Films.mdb", estUnFichier);
    const Recherche images = cherche(racine, ligne(lignes, kLigneImages), "Images", fichiers::dossierExiste);
    return {base.trouve, util::avecSeparateur(images.trouve), base.absent, images.absent};
}

}  // namespace acquire
