#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

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

bool correspond(const std::string& nom, std::string_view motif) {
    if (motif == "*.*" || motif == "*") return true;
    const std::string cle = util::cleSansCasse(nom);
    return motif.starts_with('*') ? util::finitPar(cle, util::cleSansCasse(motif.substr(1)))
                                  : cle == util::cleSansCasse(motif);
}

}  // namespace

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

int supprimeSelonMotif(const std::string& dossier, std::string_view motif) {
    // A link to a folder is a file here: the link goes, the folder stays.
    const auto noms = nomsTries(dossier, [](const fs::directory_entry& entree) {
        std::error_code erreur;
        return entree.symlink_status(erreur).type() != fs::file_type::directory;
    });
    return static_cast<int>(std::count_if(noms.begin(), noms.end(), [&](const std::string& nom) {
        return correspond(nom, motif) && unlink((util::avecSeparateur(dossier) + nom).c_str()) == 0;
    }));
}

std::vector<std::string> listeFichiers(const std::string& dossier) {
    return nomsTries(dossier, [](const fs::directory_entry& entree) {
        std::error_code erreur;
        return entree.is_regular_file(erreur);
    });
}

}  // namespace fichiers
