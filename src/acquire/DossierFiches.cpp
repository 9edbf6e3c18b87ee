#include "acquire/DossierFiches.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>

namespace acquire {

long FichesChoisies::nombre() const {
    return noms.empty() ? CompteFilmsRepertoire(dossier) : static_cast<long>(noms.size());
}

std::int64_t FichesChoisies::octets(bool affichesEnBase) const {
    if (noms.empty()) return octetsAAjouter(dossier, affichesEnBase);
    const DossierFiches fiches(*this);
    std::int64_t octets = 0;
    for (const std::string& nom : noms) {
        octets += std::max<std::int64_t>(0, fichiers::longueur(fiches.chemin(nom)));
        const auto affiche = affichesEnBase ? fiches.trouveAffiche(nom) : std::nullopt;
        if (affiche) octets += std::max<std::int64_t>(0, fichiers::longueur(*affiche));
    }
    return octets;
}

DossierFiches::DossierFiches(const FichesChoisies& choisies)
    : m_dossier(util::avecSeparateur(choisies.dossier)), m_fiches(choisies.noms) {
    for (std::string& nom : fichiersDuDossier(choisies.dossier)) {
        const std::string extension = util::majuscules(fichiers::extension(nom));
        if (extension == "JPG") {
            m_imagesSansCasse.try_emplace(util::cleSansCasse(nom), nom);
            m_images.insert(std::move(nom));
        } else if (choisies.noms.empty() && extension == "FILM") {
            m_fiches.push_back(std::move(nom));
        }
    }
}

std::string DossierFiches::nomAffiche(const std::string& fiche) {
    return fichiers::sansExtension(fiche) + ".jpg";
}

std::string DossierFiches::cheminAffiche(const std::string& fiche) const {
    return chemin(nomAffiche(fiche));
}

std::optional<std::string> DossierFiches::trouveAffiche(const std::string& fiche) const {
    const std::string nom = nomAffiche(fiche);
    if (m_images.contains(nom)) return chemin(nom);
    const auto place = m_imagesSansCasse.find(util::cleSansCasse(nom));
    if (place == m_imagesSansCasse.end()) return std::nullopt;
    return chemin(place->second);
}

}  // namespace acquire
