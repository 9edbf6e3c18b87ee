#include "db/Chemins.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

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

// The path may be a link: neither the place of the link nor that of what it leads to may be emptied.
bool Chemins::estDansTmp(const std::string& chemin) const {
    const std::string trouve = fichiers::trouve(chemin).value_or(chemin);
    return fichiers::estDans(trouve, dossierTmp) || fichiers::estDans(fichiers::dossierDe(trouve), dossierTmp);
}

}  // namespace db
