#include "platform/systeme/DossierProgramme.h"

#include "util/NomsFichiers.h"

#include <filesystem>

namespace systeme {

std::string dossierDuProgramme() {
    std::error_code erreur;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", erreur);
    return erreur ? "" : util::avecSeparateur(executable.parent_path().string());
}

}  // namespace systeme
