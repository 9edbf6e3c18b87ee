#include "util/NomsFichiers.h"

#include "util/Ascii.h"

namespace util {

std::string nettoieNomFichier(std::string_view nom, std::string_view remplacement) {
    std::string resultat;
    for (const char c : nom) {
        if (std::string_view(R"("\/?<>|*:)").find(c) == std::string_view::npos)
            resultat += c;
        else
            resultat += remplacement;
    }
    return resultat;
}

bool aUneLettreDeLecteur(std::string_view chemin) {
    return chemin.size() > 1 && estUneLettre(chemin[0]) && chemin[1] == ':';
}

std::string avecSeparateur(std::string_view dossier) {
    std::string resultat(dossier);
    if (!dossier.empty() && !dossier.ends_with('/') && !dossier.ends_with('\\')) resultat += '/';
    return resultat;
}

}  // namespace util
