#include "util/NomsFichiers.h"

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

std::string avecSeparateur(std::string_view dossier) {
    std::string resultat(dossier);
    if (!dossier.empty() && !dossier.ends_with('/') && !dossier.ends_with('\\')) resultat += '/';
    return resultat;
}

}  // namespace util
