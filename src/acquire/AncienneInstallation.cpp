#include "acquire/AncienneInstallation.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace acquire {

namespace {

constexpr const char* kReglages = "Ambrelis.ini";
constexpr std::size_t kLigneImages = 2;
constexpr std::size_t kLigneBase = 6;
constexpr std::int64_t kTailleMaxReglages = 1 << 20;  // bytes
constexpr std::string_view kSeparateurs = "/\\";

std::string ligne(const std::vector<std::string>& lignes, std::size_t numero) {
    return numero <= lignes.size() ? lignes[numero - 1] : "";
}

using Examen = bool (*)(const std::string&);  // is it one of those looked for?

std::optional<std::string> siCEstLui(const std::string& chemin, Examen examen) {
    const auto trouve = fichiers::trouve(chemin);
    return trouve && examen(*trouve) ? trouve : std::nullopt;
}

// What the settings name, or nothing.
std::optional<std::string> nomme(const std::string& dossier, std::string_view chemin, Examen examen) {
    while (!chemin.empty() && kSeparateurs.find(chemin.back()) != std::string_view::npos)
        chemin.remove_suffix(1);
    if (chemin.starts_with('/'))
        if (const auto trouve = siCEstLui(std::string(chemin), examen)) return trouve;
    if (chemin.size() >= 2 && chemin[1] == ':') chemin.remove_prefix(2);  // a drive
    while (!chemin.empty()) {
        const std::size_t fin = chemin.find_first_of(kSeparateurs);
        if (fin != 0)
            if (const auto trouve = siCEstLui(dossier + std::string(chemin), examen)) return trouve;
        if (fin == std::string_view::npos) break;
        chemin.remove_prefix(fin + 1);
    }
    return std::nullopt;
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
