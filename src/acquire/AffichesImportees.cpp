#include "acquire/AffichesImportees.h"

#include "platform/fichiers/Fichiers.h"

#include <utility>

namespace acquire {

AffichesImportees::AffichesImportees(const db::Contexte& c)
    : m_c(c), m_lot(c, c.stockage.dansLaBase() ? "" : db::dossierImages(c)) {}

void AffichesImportees::prepareDossier() {
    if (std::exchange(m_dossierPret, true) || dansLaBase()) return;
    if (const auto refus = db::refusDossierImages(m_c)) throw db::EchecConversion{*refus};
    const std::string dossier = db::dossierImages(m_c);
    fichiers::creeDossier(dossier);
    if (!fichiers::dossierModifiable(dossier))
        throw db::EchecConversion{"Le dossier des images " + dossier + " n'est pas accessible en écriture !"};
}

std::optional<AfficheImportee> AffichesImportees::place(const db::CleFilm& film, std::string_view octets,
                                                        bool tientDansLaBase, std::string_view actuelle) {
    if (!dansLaBase()) {
        prepareDossier();
        const std::string nom = m_lot.pose(db::nomFichierAffiche(film.titre, film.realisateur), octets, actuelle);
        return AfficheImportee{db::valeurAfficheFichier(nom), 0};
    }
    if (!tientDansLaBase) return std::nullopt;
    return AfficheImportee{db::valeurAfficheDansLaBase(octets), octets.size()};
}

bool AffichesImportees::aSonFichier(const std::string& affiche) const {
    return db::fichierAffiche(db::dossierImages(m_c), affiche).has_value();
}

}  // namespace acquire
