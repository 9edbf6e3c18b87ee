#include "acquire/AncienneInstallation.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace acquire {

namespace {

constexpr const char* kReglages = "Ambrelis.ini";
constexpr std::size_t kLigneImages = 2;
constexpr std::size_t kLigneBase = 6;
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

std::string cherche(const std::string& dossier, const std::string& nommee, const char* habituelle, Examen examen) {
    if (const auto trouve = nomme(dossier, nommee, examen)) return *trouve;
    return siCEstLui(dossier + habituelle, examen).value_or("");
}

}  // namespace

AncienneInstallation AncienneInstallation::dans(const std::string& dossier) {
    const std::string racine = util::avecSeparateur(dossier);
    const auto reglages = fichiers::litLignes(racine + kReglages, kLigneBase).value_or(std::vector<std::string>());
    return {cherche(racine, ligne(reglages, kLigneBase), "Films.mdb", fichiers::existe),
            util::avecSeparateur(cherche(racine, ligne(reglages, kLigneImages), "Images", fichiers::dossierExiste))};
}

}  // namespace acquire
