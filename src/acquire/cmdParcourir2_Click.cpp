#include "acquire/cmdParcourir2_Click.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"

namespace acquire {

void ChoixDossierFiches::cmdParcourir2_Click() {
    const std::string dossier =
        m_dialogues.choisitDossier("Dossier des fiches de films", dossierDesFiches(m_ajout, m_chemins));
    if (dossier.empty()) return;
    m_ajout.txtCheminAjoutAuto.Text = dossier;
    montreNombreDeFiches(m_ajout, m_chemins);
}

bool ChoixDossierFiches::remplaceCheminWindows() {
    const std::string& dossier = m_ajout.txtCheminAjoutAuto.Text;
    if (fichiers::estCheminWindows(dossier)) cmdParcourir2_Click();
    return !fichiers::estCheminWindows(dossier);
}

void ChoixDossierFiches::txtCheminAjoutAuto_Change() {
    montreNombreDeFiches(m_ajout, m_chemins);
}

std::string dossierDesFiches(const edit::EtatAjout& ajout, const db::Chemins& chemins) {
    return fichiers::cheminTape(ajout.txtCheminAjoutAuto.Text, chemins.dossier);
}

void montreNombreDeFiches(edit::EtatAjout& ajout, const db::Chemins& chemins) {
    const std::string dossier = dossierDesFiches(ajout, chemins);
    ajout.lblNbFilms.Caption = dossier.empty() ? ""
                               : !fichiers::dossierExiste(dossier)
                                   ? "Ce dossier n'existe pas."
                                   : texteNombreDeFiches(CompteFilmsRepertoire(dossier));
}

}  // namespace acquire
