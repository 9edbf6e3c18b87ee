#include "acquire/CompteFilmsRepertoire.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>

namespace acquire {

bool estFiche(const std::string& nom) {
    return util::majuscules(fichiers::extension(nom)) == "FILM";
}

long CompteFilmsRepertoire(const std::string& dossier) {
    const std::vector<std::string> noms = fichiersDuDossier(dossier);
    return static_cast<long>(std::count_if(noms.begin(), noms.end(), estFiche));
}

std::string texteNombreDeFiches(long nombre) {
    if (nombre == 0) return "Aucun fichier .FILM trouvé.";
    if (nombre == 1) return "Un fichier .FILM trouvé.";
    return std::to_string(nombre) + " fichiers .FILM trouvés.";
}

std::vector<std::string> fichiersDuDossier(const std::string& dossier) {
    if (dossier.empty()) return {};
    return fichiers::listeFichiers(dossier);
}

std::int64_t octetsAAjouter(const std::string& dossier, bool affichesEnBase) {
    std::int64_t octets = 0;
    for (const std::string& nom : fichiersDuDossier(dossier))
        if (estFiche(nom) || (affichesEnBase && util::majuscules(fichiers::extension(nom)) == "JPG"))
            octets += std::max<std::int64_t>(0, fichiers::longueur(util::avecSeparateur(dossier) + nom));
    return octets;
}

}  // namespace acquire
