#include "acquire/AdresseRecherche.h"

#include "util/Texte.h"

namespace acquire {

std::string adresseRecherche(Critere critere, const std::string& texte) {
    const std::string cherche = util::remplace(util::sansAccents(util::minuscules(texte)), " ", "+");
    const std::string page = kSiteMovieCovers + std::string("/multicrit.html?");
    switch (critere) {
        case Critere::Realisateur:
            return page + "real=" + cherche;
        case Critere::Acteur:
            return page + "acteur=" + cherche;
        case Critere::Annee:
            return page + "anneemin=" + cherche + "&anneemax=" + cherche;
        case Critere::Titre:
            break;
    }
    return page + "titre=" + cherche;
}

}  // namespace acquire
