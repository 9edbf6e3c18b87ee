#include "acquire/FichesDeposees.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/DossierFiches.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "browse/CreeRequeteAffichage.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomMontrable.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <charconv>
#include <filesystem>
#include <optional>
#include <string_view>

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
        const DossierFiches& source = dossierDe(fiche);
        m_origines.push_back(fichiers::dossierDe(fiche));
        const std::string nom = std::to_string(m_origines.size()) + " " + fichiers::nomDeFichier(fiche);
        const auto affiche = source.trouveAffiche(fichiers::nomDeFichier(fiche));
        return fichiers::creeDossier(m_dossier) && fichiers::copie(fiche, m_dossier + nom) &&
               (!affiche || fichiers::copie(*affiche, m_dossier + fichiers::sansExtension(nom) + ".jpg"));
    }
    // A report speaks of the user's files: the copies are gone when it is read.
    void rendLesNoms(RapportImport& rapport) const {
        for (auto* chemins : {&rapport.affichesManquantes, &rapport.fichesIllisibles, &rapport.fichesRestantes})
            for (std::string& chemin : *chemins)
                chemin = origine(chemin);
    }

  private:
    [[nodiscard]] std::string origine(const std::string& copie) const {
        const std::string_view nom = std::string_view(copie).substr(m_dossier.size());
        std::size_t numero = 0;
        const char* const fin = std::from_chars(nom.data(), nom.data() + nom.size(), numero).ptr;
        return m_origines[numero - 1] + std::string(fin + 1, nom.data() + nom.size());
    }
    void efface() const {
        fichiers::supprimeSelonMotif(m_dossier, "*");
        std::error_code ignoree;
        std::filesystem::remove(m_dossier.substr(0, m_dossier.size() - 1), ignoree);
    }
    // Thousands of sheets of one folder list it once.
    const DossierFiches& dossierDe(const std::string& fiche) {
        const std::string dossier = fichiers::dossierDe(fiche);
        if (!m_source || m_source->chemin("") != dossier) m_source.emplace(dossier);
        return *m_source;
    }

    std::string m_dossier;
    std::vector<std::string> m_origines;    // by their numbers, the folders that the sheets came from
    std::optional<DossierFiches> m_source;  // of the last sheet
};

// What the user put before the program.
struct Lot {
    std::vector<std::string> fiches, dossiers;
    std::vector<std::string> absents, fermes, autres;  // what is none of them, and why

    explicit Lot(const std::vector<std::string>& chemins) {
        for (const std::string& chemin : chemins)
            sorteDe(chemin).push_back(chemin);
    }

  private:
    std::vector<std::string>& sorteDe(const std::string& chemin) {
        // A folder without the right to enter it exists, and nothing in it does, were it itself.
        if (fichiers::dossierExiste(chemin)) return fichiers::dossierExiste(chemin + "/.") ? dossiers : fermes;
        if (!fichiers::existe(chemin)) return absents;
        return estFiche(chemin) ? fiches : autres;
    }
};

// A name fit for one line.
std::string nomMontre(std::string chemin) {
    while (chemin.size() > 1 && chemin.ends_with('/'))
        chemin.pop_back();
    return util::entreChevrons(util::nomMontrable(fichiers::nomDeFichier(chemin)));
}

std::string ecart(const std::vector<std::string>& chemins, const std::string& un, const std::string& plusieurs) {
    if (chemins.empty()) return "";
    const std::string nom = nomMontre(chemins.front());
    if (chemins.size() == 1) return " " + nom + un;
    return " " + util::phraseCompte(static_cast<long>(chemins.size()), "", plusieurs) + ", dont " + nom + ".";
}

std::string ecarts(const Lot& lot) {
    return ecart(lot.absents, " est introuvable.", "# fichiers sont introuvables") +
           ecart(lot.fermes, " ne peut pas être ouvert (Accès refusé).",
                 "# dossiers ne peuvent pas être ouverts (Accès refusé)") +
           ecart(lot.autres, " n'est pas une fiche .FILM.", "# fichiers ne sont pas des fiches .FILM");
}

// Of several folders, or of one among sheets, all sheets are one lot.
void ouvreLesDossiers(Lot& lot) {
    for (const std::string& dossier : lot.dossiers) {
        const DossierFiches source(dossier);
        for (const std::string& nom : source.fiches())
            lot.fiches.push_back(source.chemin(nom));
    }
}

void importeLeDossier(const Contexte& c, const std::string& dossier) {
    c.ajout.txtCheminAjoutAuto.Text = dossier;
    montreNombreDeFiches(c);
    cmdAjoutAuto_Click(c);
}

}  // namespace

void importeFichesDeposees(const Contexte& c, const std::vector<std::string>& chemins) {
    c.demandes.premierPlan = true;  // the questions come before the program that the sheets came from
    Lot lot(chemins);
    const std::string aDire = ecarts(lot);
    if (lot.dossiers.size() == 1 && lot.fiches.empty()) {
        if (!aDire.empty()) c.avis.remarque(aDire.substr(1));
        return importeLeDossier(c, lot.dossiers.front());
    }
    ouvreLesDossiers(lot);
    if (lot.fiches.empty()) return c.avis.montre("Aucune fiche .FILM à importer." + aDire);
    DossierDeCopies copies(c.chemins);
    for (const std::string& fiche : lot.fiches)
        if (!copies.recois(fiche))
            return c.avis.montre(nomMontre(fiche) + " n'a pas pu être lue : rien n'a été importé.");
    if (!aDire.empty()) c.avis.remarque(aDire.substr(1));
    browse::puisVersLaListe(c, [&] {
        importeFiches(c, {copies.chemin()}, [&copies](RapportImport& rapport) { copies.rendLesNoms(rapport); });
    });
}

}  // namespace acquire
