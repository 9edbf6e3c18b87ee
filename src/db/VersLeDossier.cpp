#include "db/Affiches.h"
#include "db/SensConversion.h"

namespace db {

std::string VersLeDossier::enonce() const {
    return "SELECT * FROM films WHERE Affiche LIKE 'STO*'";
}

long VersLeDossier::aConvertir(const dao::Recordset& films) const {
    return films.RecordCount();
}

RapportConversion VersLeDossier::convertit(dao::Recordset& films) {
    const std::string affiche = films.texte("Affiche");
    if (!estDansLaBase(affiche)) return {};
    const std::string nom = m_lot.pose(nomFichierAffiche(films.texte("Titre"), films.texte("Realisateur")),
                                       std::string_view(affiche).substr(kTaillePrefixe));
    films.Edit();
    films.assigne("Affiche", valeurAfficheFichier(nom));
    films.Update();
    return {.crees = 1};
}

}  // namespace db
