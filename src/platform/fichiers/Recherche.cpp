#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <climits>
#include <ctime>
#include <memory>
#include <unordered_map>

#include <dirent.h>
#include <sys/stat.h>

namespace fichiers {

namespace {

bool estLa(const std::string& chemin) {
    struct stat infos {};
    return !chemin.empty() && stat(chemin.c_str(), &infos) == 0;
}

using NomsParCle = std::unordered_map<std::string, std::vector<std::string>>;  // each list in name order

NomsParCle litNoms(const std::string& dossier) {
    NomsParCle noms;
    const std::unique_ptr<DIR, int (*)(DIR*)> ouvert(opendir(dossier.c_str()), &closedir);
    if (!ouvert) return noms;
    while (const dirent* entree = readdir(ouvert.get()))
        noms[util::cleSansCasse(entree->d_name)].push_back(entree->d_name);
    for (auto& [cle, liste] : noms)
        std::sort(liste.begin(), liste.end());
    return noms;
}

std::int64_t nanosecondes(const timespec& instant) {
    return instant.tv_sec * std::int64_t{1'000'000'000} + instant.tv_nsec;
}

// The names of the folders searched last. A batch looks for one missing file after the other in the same folder, and
// would read thousands of names each time. What is kept serves only while the folder's own date stands, and never when
// that date was so fresh at the reading that a later change could bear the same.
class DossiersLus {
  public:
    const NomsParCle& noms(const std::string& dossier) {
        struct stat infos {};
        if (stat(dossier.c_str(), &infos) != 0) infos = {};
        if (const auto lu = m_lus.find(dossier); lu != m_lus.end() && vautEncore(lu->second, infos))
            return lu->second.noms;
        if (m_lus.size() >= kMaximum) m_lus.clear();
        struct timespec maintenant {};
        clock_gettime(CLOCK_REALTIME, &maintenant);
        Lu& lu = m_lus[dossier];
        lu = {infos, nanosecondes(maintenant) - nanosecondes(infos.st_mtim) > kMarge, litNoms(dossier)};
        return lu.noms;
    }

  private:
    static constexpr std::size_t kMaximum = 16;         // a path's folders, and a few more
    static constexpr std::int64_t kMarge = 50'000'000;  // ns: several ticks of the clock that dates files

    struct Lu {
        struct stat infos;
        bool sur;
        NomsParCle noms;
    };
    static bool vautEncore(const Lu& lu, const struct stat& infos) {
        return lu.sur && lu.infos.st_ino == infos.st_ino && lu.infos.st_dev == infos.st_dev &&
               nanosecondes(lu.infos.st_mtim) == nanosecondes(infos.st_mtim);
    }

    std::unordered_map<std::string, Lu> m_lus;
};

// The names of `dossier` that are `nom`: as it stands first, then in other letters, in name order.
std::vector<std::string> candidats(const std::string& dossier, const std::string& nom) {
    thread_local DossiersLus lus;
    std::vector<std::string> resultat;
    if (estLa(dossier + nom)) resultat.push_back(nom);
    const NomsParCle& noms = lus.noms(dossier.empty() ? "." : dossier);
    if (const auto memes = noms.find(util::cleSansCasse(nom)); memes != noms.end())
        std::copy_if(memes->second.begin(), memes->second.end(), std::back_inserter(resultat),
                     [&](const std::string& autre) { return autre != nom; });
    return resultat;
}

// Follows `reste` from `dossier` (empty or ending in "/"), part by part. A "\" belongs to the name first, and separates
// when no such name leads anywhere.
std::optional<std::string> suit(const std::string& dossier, std::string_view reste) {
    while (reste.starts_with('/'))
        reste.remove_prefix(1);
    if (reste.empty()) return dossier;
    std::size_t fin = std::min(reste.find('/'), reste.size());
    for (;;) {
        const std::string nom(reste.substr(0, fin));
        const std::string_view suite = reste.substr(std::min(fin + 1, reste.size()));
        if (nom.empty()) return suit(dossier, suite);  // two separators in a row
        for (const std::string& candidat : candidats(dossier, nom)) {
            if (fin >= reste.size()) return dossier + candidat;
            if (auto trouve = suit(dossier + candidat + "/", suite)) return trouve;
        }
        fin = reste.substr(0, fin).rfind('\\');
        if (fin == std::string_view::npos) return std::nullopt;
    }
}

}  // namespace

std::optional<std::string> trouve(const std::string& chemin) {
    if (estLa(chemin)) return chemin;
    if (chemin.empty() || chemin.size() >= PATH_MAX || chemin.find('\0') != std::string::npos) return std::nullopt;
    std::string traduit = chemin;
    std::replace(traduit.begin(), traduit.end(), '\\', '/');
    if (estLa(traduit)) return traduit;
    auto trouve = suit(chemin.starts_with('/') ? "/" : "", chemin);
    return trouve && estLa(*trouve) ? trouve : std::nullopt;
}

bool existe(const std::string& chemin) {
    const auto reel = trouve(chemin);
    struct stat infos {};
    return reel && stat(reel->c_str(), &infos) == 0 && !S_ISDIR(infos.st_mode);
}

}  // namespace fichiers
