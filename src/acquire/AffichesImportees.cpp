#include "acquire/AffichesImportees.h"

#include "platform/fichiers/Fichiers.h"

#include <utility>

namespace acquire {

AffichesImportees::AffichesImportees(dao::Database& base, db::EtatStockage& stockage, const db::Chemins& chemins)
    : m_stockage(stockage),
      m_chemins(chemins),
      m_lot(base, stockage.dansLaBase() ? "" : db::dossierImages(stockage, chemins)) {}

void AffichesImportees::prepareDossier() {
    if (std::exchange(m_dossierPret, true) || dansLaBase()) return;
    if (const auto refus = db::refusDossierImages(m_stockage, m_chemins)) throw db::EchecConversion{*refus};
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    fichiers::creeDossier(dossier);
    if (!fichiers::dossierModifiable(dossier))
        throw db::EchecConversion{"Le dossier des images " + dossier + " n'est pas accessible en écriture !"};
}

std::optional<AfficheImportee> AffichesImportees::place(const std::string& titre, const std::string& realisateur,
                                                        std::string_view octets, bool tientDansLaBase,
                                                        std::string_view actuelle) {
    if (!dansLaBase()) {
        prepareDossier();
        const std::string nom = m_lot.pose(db::nomFichierAffiche(titre, realisateur), octets, actuelle);
        return AfficheImportee{db::valeurAfficheFichier(nom), 0};
    }
    if (!tientDansLaBase) return std::nullopt;
    return AfficheImportee{db::valeurAfficheDansLaBase(octets), octets.size()};
}

bool AffichesImportees::aSonFichier(const std::string& affiche) const {
    return db::fichierAffiche(db::dossierImages(m_stockage, m_chemins), affiche).has_value();
}

}  // namespace acquire
