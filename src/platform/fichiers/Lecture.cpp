#include "platform/fichiers/Descripteur.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <cerrno>
#include <stdexcept>

namespace fichiers {

namespace {

constexpr std::size_t kTailleBloc = 1 << 16;

// The path itself when it opens, else where the file really lies.
std::string cheminLisible(const std::string& chemin) {
    return access(chemin.c_str(), F_OK) == 0 ? chemin : trouve(chemin).value_or(chemin);
}

std::optional<std::string> litDescripteur(const Descripteur& fichier, std::uint64_t limite) {
    struct stat infos {};
    if (fstat(fichier.numero(), &infos) != 0 || !S_ISREG(infos.st_mode)) return std::nullopt;
    const auto annonce = static_cast<std::uint64_t>(infos.st_size);
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

// The end of the line that starts at `debut`, and where the next one starts.
struct FinDeLigne {
    std::size_t fin;
    std::size_t suite;
};

FinDeLigne finDeLigne(std::string_view texte, std::size_t debut) {
    const std::size_t fin = texte.find_first_of("\r\n", debut);
    if (fin == std::string_view::npos) return {texte.size(), texte.size()};
    return {fin, fin + (texte.substr(fin).starts_with("\r\n") ? 2u : 1u)};
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
    try {
        const auto octetsMax = static_cast<std::uint64_t>(std::max<std::int64_t>(limite, 0));
        if (const Descripteur fichier(chemin, O_RDONLY); fichier.estOuvert()) return litDescripteur(fichier, octetsMax);
        return litDescripteur(Descripteur(cheminLisible(chemin), O_RDONLY), octetsMax);
    } catch (const std::bad_alloc&) {  // larger than the memory
        return std::nullopt;
    } catch (const std::length_error&) {
        return std::nullopt;
    }
}

std::optional<std::vector<std::string>> litLignes(const std::string& chemin, std::size_t maximum) {
    const auto octets = lit(chemin);
    if (!octets) return std::nullopt;
    const std::string texte = util::decodeTexteExterne(*octets);
    std::vector<std::string> lignes;
    for (std::size_t debut = 0; debut < texte.size() && lignes.size() < maximum;) {
        const FinDeLigne ligne = finDeLigne(texte, debut);
        lignes.push_back(texte.substr(debut, ligne.fin - debut));
        debut = ligne.suite;
    }
    return lignes;
}

std::optional<Identite> identite(const std::string& chemin) {
    struct stat infos {};
    if (stat(cheminLisible(chemin).c_str(), &infos) != 0) return std::nullopt;
    return Identite(infos.st_dev, infos.st_ino);
}

std::optional<Place> situe(const std::string& chemin) {
    struct stat infos {};
    std::string reel = chemin;
    if (stat(reel.c_str(), &infos) != 0) {
        reel = trouve(chemin).value_or("");
        if (stat(reel.c_str(), &infos) != 0) return std::nullopt;
    }
    if (S_ISDIR(infos.st_mode)) return std::nullopt;
    return Place{std::move(reel), {infos.st_dev, infos.st_ino}};
}

std::optional<Place> situeDans(const std::string& dossier, const std::string& nom) {
    if (dossier.empty() || nom.empty() || nom == "." || nom == ".." || nom.find_first_of("/\\") != std::string::npos)
        return std::nullopt;
    const std::string chemin = util::avecSeparateur(dossier) + nom;
    struct stat infos {};
    std::string reel = chemin;
    if (lstat(reel.c_str(), &infos) != 0) reel = trouve(chemin).value_or("");
    if (lstat(reel.c_str(), &infos) != 0 || !S_ISREG(infos.st_mode)) return std::nullopt;
    return Place{std::move(reel), {infos.st_dev, infos.st_ino}};
}

bool executable(const std::string& chemin) {
    return longueur(chemin) >= 0 && access(cheminLisible(chemin).c_str(), X_OK) == 0;
}

std::int64_t longueur(const std::string& chemin) {
    struct stat infos {};
    return stat(cheminLisible(chemin).c_str(), &infos) == 0 && S_ISREG(infos.st_mode) ? infos.st_size : -1;
}

}  // namespace fichiers
