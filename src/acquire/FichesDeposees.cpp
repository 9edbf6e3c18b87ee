#include "acquire/FichesDeposees.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/DossierFiches.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace acquire {

namespace {

// The folder of copies that an import of single files reads.
class DossierDeCopies {
  public:
    explicit DossierDeCopies(const db::Chemins& chemins) : m_dossier(chemins.dossierTmp + "/Fiches déposées/") {
        efface();
    }
    DossierDeCopies(const DossierDeCopies&) = delete;
    DossierDeCopies& operator=(const DossierDeCopies&) = delete;
    ~DossierDeCopies() { efface(); }

    [[nodiscard]] const std::string& chemin() const { return m_dossier; }
    // False when the disk took no copy. Numbers keep sheets of one name from several folders apart.
    bool recois(const std::string& fiche) {
        const DossierFiches source(fichiers::dossierDe(fiche));
        const std::string nom = std::to_string(++m_nombre) + " " + fichiers::nomDeFichier(fiche);
        const auto affiche = source.trouveAffiche(fichiers::nomDeFichier(fiche));
        return fichiers::creeDossier(m_dossier) && fichiers::copie(fiche, m_dossier + nom) &&
               (!affiche || fichiers::copie(*affiche, m_dossier + fichiers::sansExtension(nom) + ".jpg"));
    }

  private:
    void efface() const {
        fichiers::supprimeSelonMotif(m_dossier, "*");
        std::error_code ignoree;
        std::filesystem::remove(m_dossier.substr(0, m_dossier.size() - 1), ignoree);
    }
    std::string m_dossier;
    int m_nombre = 0;
};

void importeLeDossier(const Contexte& c, const std::string& dossier) {
    c.ajout.txtCheminAjoutAuto.Text = dossier;
    montreNombreDeFiches(c);
    cmdAjoutAuto_Click(c);
}

}  // namespace

void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins) {
    const auto dossier = std::ranges::find_if(chemins, fichiers::dossierExiste);
    if (dossier != chemins.end()) return importeLeDossier(c, *dossier);
    DossierDeCopies copies(c.chemins);
    long recues = 0;
    for (const std::string& chemin : chemins) {
        if (!estFiche(chemin) || !fichiers::existe(chemin)) continue;
        if (!copies.recois(chemin))
            return c.avis.montre("« " + fichiers::nomDeFichier(chemin) +
                                 " » n'a pas pu être lue : rien n'a été importé.");
        ++recues;
    }
    if (recues == 0) return c.avis.montre("Aucune fiche .FILM dans ce qui a été déposé.");
    const std::string avant = c.ajout.txtCheminAjoutAuto.Text;
    try {
        importeLeDossier(c, copies.chemin());
    } catch (...) {
        c.ajout.txtCheminAjoutAuto.Text = avant;
        throw;
    }
    c.ajout.txtCheminAjoutAuto.Text = avant;
    montreNombreDeFiches(c);
}

}  // namespace acquire
