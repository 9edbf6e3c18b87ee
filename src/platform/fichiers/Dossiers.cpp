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

// A final separator would have the system follow a link.
std::string sansSeparateurFinal(std::string dossier) {
    while (dossier.size() > 1 && dossier.ends_with('/'))
        dossier.pop_back();
    return dossier.empty() ? "." : dossier;
}

bool estUnDossier(int parent, const dirent& entree) {
    if (entree.d_type != DT_UNKNOWN) return entree.d_type == DT_DIR;
    struct stat infos {};
    return fstatat(parent, entree.d_name, &infos, AT_SYMLINK_NOFOLLOW) != 0 || S_ISDIR(infos.st_mode);
}

// Also where a link leads to one.
bool estUnFichier(int parent, const dirent& entree) {
    if (entree.d_type != DT_LNK && entree.d_type != DT_UNKNOWN) return entree.d_type == DT_REG;
    struct stat infos {};
    return fstatat(parent, entree.d_name, &infos, 0) == 0 && S_ISREG(infos.st_mode);
}

// Of the open folder, whatever its path leads to by now: those that `garde` keeps. The standard iterator ends the program
// where memory lacks.
template <typename Garde>
std::vector<std::string> nomsDe(const Descripteur& dossier, Garde garde) {
    std::vector<std::string> noms;
    const int copie = fcntl(dossier.numero(), F_DUPFD_CLOEXEC, 0);
    const std::unique_ptr<DIR, int (*)(DIR*)> ouvert(copie < 0 ? nullptr : fdopendir(copie), &closedir);
    if (!ouvert) {
        if (copie >= 0) close(copie);
        return noms;
    }
    while (const dirent* entree = readdir(ouvert.get())) {
        const std::string_view nom = entree->d_name;
        if (nom != "." && nom != ".." && garde(dossier.numero(), *entree)) noms.emplace_back(nom);
    }
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
    const std::vector<std::string> noms =
        nomsDe(ouvert, [](int parent, const dirent& entree) { return !estUnDossier(parent, entree); });
    return static_cast<int>(std::count_if(noms.begin(), noms.end(), [&](const std::string& nom) {
        return correspond(nom, motif) && unlinkat(ouvert.numero(), nom.c_str(), 0) == 0;
    }));
}

std::vector<std::string> listeNoms(const std::string& dossier) {
    return nomsDe(Descripteur(dossier, O_RDONLY | O_DIRECTORY), [](int, const dirent&) { return true; });
}

// Without regard to case, then by their bytes.
std::vector<std::string> listeFichiers(const std::string& dossier) {
    std::vector<std::pair<std::string, std::string>> cles;
    for (std::string& nom : nomsDe(Descripteur(dossier, O_RDONLY | O_DIRECTORY), estUnFichier))
        cles.emplace_back(util::cleSansCasse(nom), std::move(nom));
    std::sort(cles.begin(), cles.end());
    std::vector<std::string> noms;
    for (auto& cle : cles)
        noms.push_back(std::move(cle.second));
    return noms;
}

}  // namespace fichiers
