#include "db/Chemins.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <filesystem>

namespace db {

Chemins Chemins::depuis(const std::string& dossierProgramme) {
    Chemins chemins;
    chemins.dossier = util::avecSeparateur(dossierProgramme);
    chemins.modele = chemins.dansDossier("Modele.dat");
    chemins.base = chemins.dansDossier("Films.mdb");
    chemins.reglages = chemins.dansDossier("Ambrelis.ini");
    chemins.dossierTmp = chemins.dansDossier("Tmp");
    chemins.afficheTmp = chemins.dossierTmp + "/ImageTMP.jpg";
    return chemins;
}

bool Chemins::estDansTmp(const std::string& chemin) const {
    namespace fs = std::filesystem;
    const auto tmp = fichiers::identite(dossierTmp);
    if (!tmp) return false;
    const auto sousTmp = [&](fs::path place) {
        while (place.has_relative_path()) {
            if (fichiers::identite(place.string()) == tmp) return true;
            place = place.parent_path();
        }
        return false;
    };
    std::error_code ignoree;
    const fs::path trouve(fichiers::trouve(chemin).value_or(chemin));
    // The file may be a link: neither the place of the link nor that of what it leads to may be emptied.
    return sousTmp(fs::weakly_canonical(trouve, ignoree)) ||
           sousTmp(fs::weakly_canonical(trouve.parent_path(), ignoree));
}

}  // namespace db
