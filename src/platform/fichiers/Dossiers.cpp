#include "platform/fichiers/Descripteur.h"
#include "util/Texte.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fichiers {

namespace {

namespace fs = std::filesystem;

// `garde` gets each entry; the names it keeps, without regard to case, then by their bytes.
template <typename Garde>
std::vector<std::string> nomsTries(const std::string& dossier, Garde garde) {
    std::vector<std::pair<std::string, std::string>> noms;
    std::error_code erreur;
    for (fs::directory_iterator entree(dossier, erreur), fin; !erreur && entree != fin; entree.increment(erreur)) {
        if (!garde(*entree)) continue;
        std::string nom = entree->path().filename().string();
        noms.emplace_back(util::cleSansCasse(nom), std::move(nom));
    }
    std::sort(noms.begin(), noms.end());
    std::vector<std::string> resultat;
    for (auto& nom : noms)
        resultat.push_back(std::move(nom.second));
    return resultat;
}

// A final separator would have the system follow a link.
std::string sansSeparateurFinal(std::string dossier) {
    while (dossier.size() > 1 && dossier.ends_with('/'))
        dossier.pop_back();
    return dossier.empty() ? "." : dossier;
}

bool estUnDossier(int parent, const char* nom) {
    struct stat infos {};
    return fstatat(parent, nom, &infos, AT_SYMLINK_NOFOLLOW) != 0 || S_ISDIR(infos.st_mode);
}

// Of the open folder, whatever its path leads to by now; without its folders.
std::vector<std::string> nomsDe(const Descripteur& dossier) {
    std::vector<std::string> noms;
    const int copie = fcntl(dossier.numero(), F_DUPFD_CLOEXEC, 0);
    const std::unique_ptr<DIR, int (*)(DIR*)> ouvert(copie < 0 ? nullptr : fdopendir(copie), &closedir);
    if (!ouvert) {
        if (copie >= 0) close(copie);
        return noms;
    }
    while (const dirent* entree = readdir(ouvert.get()))
        if (!estUnDossier(dossier.numero(), entree->d_name)) noms.emplace_back(entree->d_name);
    return noms;
}

bool correspond(const std::string& nom, std::string_view motif) {
    if (motif == "*.*" || motif == "*") return true;
    const std::string cle = util::cleSansCasse(nom);
    return motif.starts_with('*') ? util::finitPar(cle, util::cleSansCasse(motif.substr(1)))
                                  : cle == util::cleSansCasse(motif);
}

}  // namespace

Descripteur ouvreDossierReel(const std::string& dossier) {
    return {sansSeparateurFinal(dossier), O_RDONLY | O_DIRECTORY | O_NOFOLLOW};
}

bool dossierExiste(const std::string& chemin) {
    std::error_code erreur;
    return fs::is_directory(chemin, erreur);
}

bool dossierModifiable(const std::string& chemin) {
    return dossierExiste(chemin) && access(chemin.c_str(), W_OK | X_OK) == 0;
}

bool supprime(const std::string& chemin) {
    return unlink(chemin.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
}

bool creeDossier(const std::string& chemin) {
    std::error_code erreur;
    fs::create_directories(chemin, erreur);
    return dossierExiste(chemin);
}

bool assureDossierPrive(const std::string& chemin) {
    const std::string dossier = sansSeparateurFinal(chemin);
    struct stat infos {};
    if (lstat(dossier.c_str(), &infos) == 0 && S_ISLNK(infos.st_mode)) unlink(dossier.c_str());
    if (mkdir(dossier.c_str(), S_IRWXU) != 0 && errno != EEXIST) return false;
    const Descripteur ouvert = ouvreDossierReel(dossier);
    if (!ouvert.estOuvert() || fstat(ouvert.numero(), &infos) != 0) return false;
    if ((infos.st_mode & 07777) != S_IRWXU) static_cast<void>(fchmod(ouvert.numero(), S_IRWXU));
    return true;
}

// A link to a folder is a file here: the link goes, the folder stays.
int supprimeSelonMotif(const std::string& dossier, std::string_view motif) {
    const Descripteur ouvert = ouvreDossierReel(dossier);
    if (!ouvert.estOuvert()) return 0;
    const std::vector<std::string> noms = nomsDe(ouvert);
    return static_cast<int>(std::count_if(noms.begin(), noms.end(), [&](const std::string& nom) {
        return correspond(nom, motif) && unlinkat(ouvert.numero(), nom.c_str(), 0) == 0;
    }));
}

std::vector<std::string> listeFichiers(const std::string& dossier) {
    return nomsTries(dossier, [](const fs::directory_entry& entree) {
        std::error_code erreur;
        return entree.is_regular_file(erreur);
    });
}

}  // namespace fichiers
