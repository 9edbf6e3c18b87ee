#include "platform/systeme/DossierProgramme.h"

#include "util/NomsFichiers.h"

#include <filesystem>

#include <gio/gio.h>

namespace systeme {

std::string dossierDuProgramme() {
    std::error_code erreur;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", erreur);
    return erreur ? "" : util::avecSeparateur(executable.parent_path().string());
}

std::string dossierDesDonnees() {
    return g_get_user_data_dir();
}

}  // namespace systeme
