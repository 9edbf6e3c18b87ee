#include "acquire/DossierFiches.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

namespace acquire {

DossierFiches::DossierFiches(const std::string& dossier) : m_dossier(util::avecSeparateur(dossier)) {
    for (std::string& nom : fichiersDuDossier(dossier)) {
        const std::string extension = util::majuscules(fichiers::extension(nom));
        if (extension == "JPG") {
            m_imagesSansCasse.try_emplace(util::cleSansCasse(nom), nom);
            m_images.insert(std::move(nom));
        } else if (extension == "FILM") {
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
