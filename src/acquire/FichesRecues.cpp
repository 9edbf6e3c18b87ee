#include "acquire/FichesRecues.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/DossierFiches.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <unordered_set>

namespace acquire {

namespace {

// The names of a folder's files without extensions nor letter case, which a sheet and its poster share.
class NomsPris {
  public:
    explicit NomsPris(const std::string& dossier) {
        for (const std::string& nom : fichiers::listeFichiers(dossier))
            m_noms.insert(util::cleSansCasse(fichiers::sansExtension(nom)));
    }
    // The name, or it with " (2)", " (3)"...
    std::string prends(const std::string& nom) {
        std::string libre = nom;
        for (int rang = 2; !m_noms.insert(util::cleSansCasse(libre)).second; ++rang)
            libre = nom + " (" + std::to_string(rang) + ")";
        return libre;
    }

  private:
    std::unordered_set<std::string> m_noms;
};

// To another file system too.
bool deplace(const std::string& de, const std::string& vers) {
    return fichiers::renomme(de, vers) || (fichiers::copie(de, vers) && fichiers::supprime(de));
}

std::vector<std::string> chemins(const DossierFiches& dossier) {
    std::vector<std::string> tous;
    for (const std::string& nom : dossier.fiches())
        tous.push_back(dossier.chemin(nom));
    return tous;
}

}  // namespace

FichesRecues::FichesRecues(const db::Chemins& chemins)
    : m_tmp(util::avecSeparateur(chemins.dossierTmp)),
      m_afficheTmp(chemins.afficheTmp),
      m_attente(chemins.dansDossier(kDossierAImporter)) {
    nettoie();
}

FichesRecues::~FichesRecues() {
    if (m_enSuspens) garde(chemins(DossierFiches(m_tmp)));
    if (m_restees == 0) nettoie();
}

long FichesRecues::nombre() const {
    return CompteFilmsRepertoire(m_tmp);
}

void FichesRecues::range(RapportImport& rapport) {
    m_enSuspens = false;
    std::vector<std::string> attendent = rapport.fichesRestantes;
    attendent.insert(attendent.end(), rapport.fichesIllisibles.begin(), rapport.fichesIllisibles.end());
    garde(attendent);
    if (m_gardees > 0)
        rapport.rangement.push_back(
            util::phraseCompte(m_gardees, "# fiche est gardée dans ", "# fiches sont gardées dans ") + m_attente + ".");
    if (m_restees > 0)
        rapport.rangement.push_back(
            util::phraseCompte(m_restees, "# fiche n'a pas pu y être déplacée et reste jusqu'à la fermeture dans ",
                               "# fiches n'ont pas pu y être déplacées et restent jusqu'à la fermeture dans ") +
            m_tmp + ".");
}

void FichesRecues::garde(const std::vector<std::string>& fiches) {
    if (fiches.empty()) return;
    fichiers::creeDossier(m_attente);
    const DossierFiches recues(m_tmp);
    NomsPris pris(m_attente);
    for (const std::string& fiche : fiches) {
        const std::string nom = fichiers::nomDeFichier(fiche);
        const std::string cible = m_attente + "/" + pris.prends(fichiers::sansExtension(nom)) + ".";
        const auto affiche = recues.trouveAffiche(nom);
        const bool gardee = deplace(fiche, cible + fichiers::extension(nom)) &&
                            (!affiche || deplace(*affiche, cible + fichiers::extension(*affiche)));
        ++(gardee ? m_gardees : m_restees);
    }
}

void FichesRecues::nettoie() const {
    fichiers::supprimeSelonMotif(m_tmp, "*.FILM");
    for (const std::string& nom : fichiers::listeFichiers(m_tmp))
        if (m_tmp + nom != m_afficheTmp && util::majuscules(fichiers::extension(nom)) == "JPG")
            fichiers::supprime(m_tmp + nom);
}

}  // namespace acquire
