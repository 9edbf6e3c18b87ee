#include "view/ChercheFichier.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace view {

namespace {

constexpr const char* kSeparateurs = "/\\";
constexpr std::size_t kCheminMax = 4096;  // bytes; the system's own limit

std::string sansSeparateurs(std::string_view chemin) {
    return std::string(chemin.substr(std::min(chemin.find_first_not_of(kSeparateurs), chemin.size())));
}

// The path without its first `nombre` names; empty when nothing follows them.
std::string sansPremiersNoms(std::string_view chemin, int nombre) {
    std::string reste = sansSeparateurs(chemin);
    for (; nombre > 0 && !reste.empty(); --nombre)
        reste =
            sansSeparateurs(std::string_view(reste).substr(std::min(reste.find_first_of(kSeparateurs), reste.size())));
    return reste;
}

// What follows a mount point, without a leading "/"; nothing when the path does not lie there.
std::optional<std::string> sous(std::string_view chemin, std::string_view racine) {
    if (racine == "/") racine = "";
    if (!chemin.starts_with(racine)) return std::nullopt;
    const std::string_view reste = chemin.substr(racine.size());
    return reste.starts_with('/') ? std::optional(sansSeparateurs(reste)) : std::nullopt;
}

// The places where removable media are mounted, and how many names make such a place: "/media/jeanne/DISQUE" and, on
// older systems, "/media/DISQUE".
constexpr std::pair<const char*, int> kLieuxDeMontage[] = {
    {"/run/media", 2}, {"/media", 1}, {"/media", 2}, {"/mnt", 1}};

// What may follow the volume of a path, the longest first, and the mounted volume that it lies on.
struct Decoupe {
    std::vector<std::string> restes;
    const systeme::Volume* volume = nullptr;
};

const systeme::Volume* volumeDe(const std::string& chemin, const std::vector<systeme::Volume>& volumes) {
    const systeme::Volume* plusLong = nullptr;
    for (const systeme::Volume& volume : volumes)
        if (sous(chemin, volume.racine) && (!plusLong || volume.racine.size() > plusLong->racine.size()))
            plusLong = &volume;
    return plusLong;
}

Decoupe decoupe(const std::string& chemin, const std::vector<systeme::Volume>& volumes) {
    if (chemin.size() > 2 && util::aUneLettreDeLecteur(chemin))
        return {{sansSeparateurs(std::string_view(chemin).substr(2))}, nullptr};
    if (chemin.starts_with("\\\\")) return {{sansPremiersNoms(chemin, 2)}, nullptr};
    const systeme::Volume* volume = volumeDe(chemin, volumes);
    if (volume && volume->racine != "/") return {{*sous(chemin, volume->racine)}, volume};
    Decoupe resultat{{sansSeparateurs(chemin)}, volume};
    for (const auto& [lieu, nombre] : kLieuxDeMontage)
        if (const auto reste = sous(chemin, lieu)) resultat.restes.push_back(sansPremiersNoms(*reste, nombre));
    return resultat;
}

bool estASilence(const std::string& chemin, const std::vector<systeme::Volume>& volumes) {
    const systeme::Volume* volume = volumeDe(chemin, volumes);
    return volume && !volume->repond;
}

std::string joint(const std::string& racine, const std::string& reste) {
    return racine.ends_with('/') ? racine + reste : racine + "/" + reste;
}

}  // namespace

std::vector<std::string> placesPossibles(const std::string& chemin, const std::vector<systeme::Volume>& volumes) {
    std::vector<std::string> places;
    if (chemin.size() >= kCheminMax) return places;
    const Decoupe coupe = decoupe(chemin, volumes);
    const auto ajoute = [&](const systeme::Volume& volume, const std::string& reste) {
        std::string place = joint(volume.racine, reste);
        if (!estASilence(place, volumes)) places.push_back(std::move(place));
    };
    for (const std::string& reste : coupe.restes) {
        if (reste.empty()) continue;
        if (coupe.volume) ajoute(*coupe.volume, reste);
        for (const systeme::Volume& volume : volumes)
            if (&volume != coupe.volume) ajoute(volume, reste);
    }
    return places;
}

std::optional<std::string> chercheFichier(const std::string& chemin, const std::vector<systeme::Volume>& volumes) {
    for (const std::string& place : placesPossibles(chemin, volumes))
        if (fichiers::existe(place)) return fichiers::trouve(place);
    return std::nullopt;
}

}  // namespace view
