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
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    fichiers::creeDossier(dossier);
    if (!fichiers::dossierModifiable(dossier))
        throw db::EchecConversion{"Le dossier des images " + dossier + " n'est pas accessible en écriture !"};
}

std::optional<AfficheImportee> AffichesImportees::place(const std::string& titre, const std::string& realisateur,
                                                        std::string_view octets, bool tientDansLaBase) {
    if (!dansLaBase()) {
        prepareDossier();
        const std::string nom = db::nomFichierAffiche(titre, realisateur);
        if (m_lot.pose(nom, octets)) return AfficheImportee{db::valeurAfficheFichier(nom), 0};
    }
    if (!tientDansLaBase) return std::nullopt;
    return AfficheImportee{db::valeurAfficheDansLaBase(octets), octets.size()};
}

bool AffichesImportees::aSonFichier(const std::string& affiche) const {
    static constexpr std::size_t kPrefixe = 3;  // "JPG"
    return affiche.size() > kPrefixe &&
           fichiers::situeDans(db::dossierImages(m_stockage, m_chemins), affiche.substr(kPrefixe));
}

}  // namespace acquire
