#include "platform/fichiers/Descripteur.h"
#include "util/Texte.h"

#include <cerrno>
#include <stdexcept>

namespace fichiers {

namespace {

constexpr std::size_t kTailleBloc = 1 << 16;
constexpr std::size_t kTailleMaxLignes = 16 << 20;

// The path itself when it opens, else where the file really lies.
std::string cheminLisible(const std::string& chemin) {
    return access(chemin.c_str(), F_OK) == 0 ? chemin : trouve(chemin).value_or(chemin);
}

std::optional<std::string> litDescripteur(const Descripteur& fichier, std::uint64_t limite) {
    const auto infos = fichier.infos();
    if (!infos) return std::nullopt;
    const auto annonce = static_cast<std::uint64_t>(infos->st_size);
    if (annonce > limite) return std::nullopt;

    // The announced size is a hint only: some files of the system say 0, others grow meanwhile.
    std::string contenu;
    std::size_t taille = 0;
    do {
        contenu.resize(taille + std::max<std::size_t>(kTailleBloc, annonce + 1 > taille ? annonce + 1 - taille : 0));
        const ssize_t lus = litBloc(fichier.numero(), contenu.data() + taille, contenu.size() - taille);
        if (lus < 0) return std::nullopt;
        taille += static_cast<std::size_t>(lus);
        if (taille > limite) return std::nullopt;
    } while (taille == contenu.size());
    contenu.resize(taille);
    return contenu;
}

std::optional<std::string> litOuvert(const Descripteur& fichier, std::int64_t limite) {
    try {
        return litDescripteur(fichier, static_cast<std::uint64_t>(std::max<std::int64_t>(limite, 0)));
    } catch (const std::bad_alloc&) {  // larger than the memory
        return std::nullopt;
    } catch (const std::length_error&) {
        return std::nullopt;
    }
}

// The first bytes of a file; of one that is longer, only whole lines.
std::optional<std::string> litLignesEntieres(const std::string& chemin, std::size_t taille) {
    const Descripteur fichier(cheminLisible(chemin), O_RDONLY);
    const auto infos = fichier.infos();
    if (!infos) return std::nullopt;
    const auto annonce = static_cast<std::size_t>(infos->st_size);
    std::string octets(std::min(taille, std::max(annonce, kTailleBloc)), '\0');
    const ssize_t lus = litBloc(fichier.numero(), octets.data(), octets.size());
    if (lus < 0) return std::nullopt;
    octets.resize(static_cast<std::size_t>(lus));
    if (octets.size() == taille) octets.resize(octets.find_last_of("\r\n") + 1);
    return octets;
}

}  // namespace

ssize_t litBloc(int descripteur, char* tampon, std::size_t taille) {
    std::size_t lus = 0;
    while (lus < taille) {
        const ssize_t recus = read(descripteur, tampon + lus, taille - lus);
        if (recus == 0) break;
        if (recus > 0)
            lus += static_cast<std::size_t>(recus);
        else if (errno != EINTR)
            return -1;
    }
    return static_cast<ssize_t>(lus);
}

std::optional<std::string> lit(const std::string& chemin, std::int64_t limite) {
    if (const Descripteur fichier(chemin, O_RDONLY); fichier.estOuvert()) return litOuvert(fichier, limite);
    return litOuvert(Descripteur(cheminLisible(chemin), O_RDONLY), limite);
}

std::optional<std::string> litSansLien(const std::string& chemin, std::int64_t limite) {
    return litOuvert(Descripteur(chemin, O_RDONLY | O_NOFOLLOW), limite);
}

std::optional<std::vector<std::string>> litLignes(const std::string& chemin, std::size_t maximum) {
    const auto octets = litLignesEntieres(chemin, kTailleMaxLignes);
    if (!octets) return std::nullopt;
    const std::string texte = util::decodeTexteExterne(*octets);
    std::vector<std::string> lignes;
    for (std::size_t place = 0; place < texte.size() && lignes.size() < maximum;)
        lignes.emplace_back(util::ligneSuivante(texte, place));
    return lignes;
}

std::optional<Identite> identite(const std::string& chemin) {
    const auto infos = infosDe(cheminLisible(chemin));
    return infos ? std::optional(identiteDe(*infos)) : std::nullopt;
}

std::optional<Place> situe(const std::string& chemin) {
    std::string reel = chemin;
    auto infos = infosDe(reel);
    if (!infos) {
        reel = trouve(chemin).value_or("");
        infos = infosDe(reel);
    }
    if (!infos || S_ISDIR(infos->st_mode)) return std::nullopt;
    return Place{std::move(reel), identiteDe(*infos)};
}

bool executable(const std::string& chemin) {
    return longueur(chemin) >= 0 && access(cheminLisible(chemin).c_str(), X_OK) == 0;
}

std::int64_t longueur(const std::string& chemin) {
    const auto infos = infosDe(cheminLisible(chemin));
    return infos && S_ISREG(infos->st_mode) ? infos->st_size : -1;
}

}  // namespace fichiers
