#include "platform/fichiers/Descripteur.h"

#include <array>
#include <cerrno>

#include <stdio.h>

namespace fichiers {

namespace {

bool saitLier(int erreur) {
    return erreur != EPERM && erreur != EOPNOTSUPP && erreur != ENOSYS && erreur != EMLINK;
}

Creation selon(bool faite) {
    return faite ? Creation::Faite : errno == EEXIST ? Creation::ExisteDeja : Creation::Echouee;
}

// Some file systems know no renaming that refuses to overwrite.
bool renommeSansEcraser(const std::string& de, const std::string& vers) {
    if (renameat2(AT_FDCWD, de.c_str(), AT_FDCWD, vers.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
    struct stat infos {};
    if (lstat(vers.c_str(), &infos) == 0) {
        errno = EEXIST;
        return false;
    }
    return rename(de.c_str(), vers.c_str()) == 0;
}

void dateComme(const std::string& chemin, const std::string& modele) {
    const auto infos = infosDe(modele);
    if (!infos) return;
    const std::array<timespec, 2> dates{infos->st_atim, infos->st_mtim};
    utimensat(AT_FDCWD, chemin.c_str(), dates.data(), 0);
}

Creation copieSous(const std::string& chemin, const std::string& autre) {
    const std::string provisoire = autre + "-copie.tmp";
    if (!copie(chemin, provisoire)) return Creation::Echouee;
    dateComme(provisoire, chemin);
    const Creation issue = synchronise({provisoire}) ? selon(renommeSansEcraser(provisoire, autre)) : Creation::Echouee;
    if (issue != Creation::Faite) supprime(provisoire);
    return issue;
}

}  // namespace

Creation donneAutreNom(const std::string& chemin, const std::string& autre) {
    const bool lie = link(chemin.c_str(), autre.c_str()) == 0;
    const Creation issue = lie || saitLier(errno) ? selon(lie) : copieSous(chemin, autre);
    if (issue != Creation::Faite || synchronise({autre})) return issue;
    supprime(autre);
    return Creation::Echouee;
}

}  // namespace fichiers
