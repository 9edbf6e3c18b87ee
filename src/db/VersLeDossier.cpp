#include "db/Affiches.h"
#include "db/SensConversion.h"

namespace db {

namespace {

constexpr std::size_t kTaillePrefixe = 3;  // "STO"

}  // namespace

std::string VersLeDossier::enonce() const {
    return "SELECT * FROM films WHERE Affiche LIKE 'STO*'";
}

RapportConversion VersLeDossier::convertit(dao::Recordset& films) {
    const std::string affiche = films.texte("Affiche");
    if (!estDansLaBase(affiche)) return {};
    const std::string nom = nomFichierAffiche(films.texte("Titre"), films.texte("Realisateur"));
    if (!m_lot.pose(nom, std::string_view(affiche).substr(kTaillePrefixe))) return {.gardes = 1};
    films.Edit();
    films.assigne("Affiche", valeurAfficheFichier(nom));
    films.Update();
    return {.crees = 1};
}

}  // namespace db
