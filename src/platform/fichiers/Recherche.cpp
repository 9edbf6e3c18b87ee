#include "platform/fichiers/Descripteur.h"
#include "util/Texte.h"

#include <algorithm>
#include <climits>
#include <ctime>
#include <map>
#include <memory>
#include <numeric>
#include <unordered_map>

#include <dirent.h>

namespace fichiers {

namespace {

constexpr std::ptrdiff_t kPartiesMax = 64;  // no path that someone made has more

bool estLa(const std::string& chemin) {
    return infosDe(chemin).has_value();
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
        const auto infos = infosDe(dossier);
        if (!infos) return m_aucun;
        const Identite identite = identiteDe(*infos);  // a folder has many paths
        if (const auto lu = m_lus.find(identite); lu != m_lus.end() && vautEncore(lu->second, *infos))
            return lu->second.noms;
        if (m_lus.size() >= kMaximum) m_lus.clear();
        struct timespec maintenant {};
        clock_gettime(CLOCK_REALTIME, &maintenant);
        Lu& lu = m_lus[identite];
        lu = {*infos, nanosecondes(maintenant) - nanosecondes(infos->st_mtim) > kMarge, litNoms(dossier)};
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
        return lu.sur && nanosecondes(lu.infos.st_mtim) == nanosecondes(infos.st_mtim);
    }

    std::map<Identite, Lu> m_lus;
    const NomsParCle m_aucun{};
};

bool estUnRenvoi(std::string_view nom) {
    return nom == "." || nom == "..";
}

// The names of `dossier` that are `nom` in other letters, in name order.
std::vector<std::string> autresLettres(const std::string& dossier, const std::string& nom) {
    thread_local DossiersLus lus;
    std::vector<std::string> resultat;
    if (estUnRenvoi(nom)) return resultat;
    const NomsParCle& noms = lus.noms(dossier.empty() ? "." : dossier);
    if (const auto memes = noms.find(util::cleSansCasse(nom)); memes != noms.end())
        std::copy_if(memes->second.begin(), memes->second.end(), std::back_inserter(resultat),
                     [&](const std::string& autre) { return autre != nom; });
    return resultat;
}

// One search by the parts of a path. A path of many separators can be cut in more ways than there is time for: no more
// than so many names are looked for.
class Parcours {
  public:
    // Follows `reste` from `dossier` (empty or ending in "/"), part by part. A "\" belongs to the name first, and
    // separates when no such name leads anywhere.
    std::optional<std::string> suit(const std::string& dossier, std::string_view reste) {
        while (reste.starts_with('/'))
            reste.remove_prefix(1);
        if (reste.empty()) return dossier;
        std::size_t fin = std::min(reste.find('/'), reste.size());
        while (m_regards > 0) {
            const std::string nom(reste.substr(0, fin));
            const std::string_view suite = reste.substr(std::min(fin + 1, reste.size()));
            if (nom.empty()) return suit(dossier, suite);  // two separators in a row
            for (const std::string& candidat : candidats(dossier, nom)) {
                if (fin >= reste.size()) return dossier + candidat;
                if (auto trouve = suit(dossier + candidat + "/", suite)) return trouve;
            }
            fin = reste.substr(0, fin).rfind('\\');
            if (fin == std::string_view::npos) break;
        }
        return std::nullopt;
    }

  private:
    std::vector<std::string> candidats(const std::string& dossier, const std::string& nom) {
        --m_regards;
        if (nom.size() > NAME_MAX) return {};
        std::vector<std::string> resultat;
        if (estLa(dossier + nom)) resultat.push_back(nom);
        for (std::string& autre : autresLettres(dossier, nom))
            resultat.push_back(std::move(autre));
        return resultat;
    }

    int m_regards = 5000;
};

// The ordinary file that bears this name itself.
std::optional<Place> placeOrdinaire(std::string chemin) {
    struct stat infos {};
    if (lstat(chemin.c_str(), &infos) != 0 || !S_ISREG(infos.st_mode)) return std::nullopt;
    return Place{std::move(chemin), identiteDe(infos)};
}

}  // namespace

std::optional<std::string> trouve(const std::string& chemin) {
    if (estLa(chemin)) return chemin;
    if (chemin.empty() || chemin.size() >= PATH_MAX || chemin.find('\0') != std::string::npos) return std::nullopt;
    std::string traduit = chemin;
    std::replace(traduit.begin(), traduit.end(), '\\', '/');
    if (estLa(traduit)) return traduit;
    auto trouve = Parcours().suit(chemin.starts_with('/') ? "/" : "", chemin);
    return trouve && estLa(*trouve) ? trouve : std::nullopt;
}

bool existe(const std::string& chemin) {
    const auto reel = trouve(chemin);
    const auto infos = reel ? infosDe(*reel) : std::nullopt;
    return infos && !S_ISDIR(infos->st_mode);
}

std::optional<Place> situeDans(const std::string& dossier, const std::string& nom) {
    if (dossier.empty() || nom.empty() || nom.size() > NAME_MAX || estUnRenvoi(nom) ||
        nom.find_first_of(std::string_view("/\0", 2)) != std::string::npos)
        return std::nullopt;
    const std::string racine = dossier.ends_with('/') ? dossier : dossier + '/';
    if (auto place = placeOrdinaire(racine + nom)) return place;
    for (const std::string& autre : autresLettres(racine, nom))
        if (auto place = placeOrdinaire(racine + autre)) return place;
    return std::nullopt;
}

std::optional<std::string> trouveParLaFin(const std::string& racine, std::string_view chemin,
                                          bool (*convient)(const std::string&)) {
    if (chemin.size() >= PATH_MAX) return std::nullopt;
    std::vector<std::string> parties(1);
    for (const char c : chemin.substr(chemin.size() > 1 && chemin[1] == ':' ? 2 : 0)) {
        if (c != '/' && c != '\\')
            parties.back() += c;
        else if (!parties.back().empty())
            parties.emplace_back();
    }
    if (parties.back().empty()) parties.pop_back();
    const auto renvoi = std::find_if(parties.rbegin(), parties.rend(), estUnRenvoi);
    parties.erase(parties.begin(), renvoi.base());
    if (parties.size() > kPartiesMax) parties.erase(parties.begin(), parties.end() - kPartiesMax);
    for (auto premiere = parties.begin(); premiere != parties.end(); ++premiere) {
        const std::string fin =
            std::accumulate(premiere + 1, parties.end(), *premiere,
                            [](std::string debut, const std::string& nom) { return std::move(debut) + '/' + nom; });
        if (auto trouve = fichiers::trouve(racine + fin); trouve && convient(*trouve)) return trouve;
    }
    return std::nullopt;
}

}  // namespace fichiers
