#include "db/Chemins.h"

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

}  // namespace db
