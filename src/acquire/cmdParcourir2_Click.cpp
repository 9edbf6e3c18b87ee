#include "acquire/cmdParcourir2_Click.h"

#include "acquire/CompteFilmsRepertoire.h"

namespace acquire {

void ChoixDossierFiches::cmdParcourir2_Click() {
    const std::string dossier =
        m_dialogues.choisitDossier("Dossier des fiches de films", m_ajout.txtCheminAjoutAuto.Text);
    if (dossier.empty()) return;
    m_ajout.txtCheminAjoutAuto.Text = dossier;
    m_ajout.lblNbFilms.Caption = texteNombreDeFiches(CompteFilmsRepertoire(dossier));
}

std::string texteNombreDeFiches(long nombre) {
    if (nombre == 0) return "Aucun fichier .FILM trouvé.";
    if (nombre == 1) return "Un fichier .FILM trouvé.";
    return std::to_string(nombre) + " fichiers .FILM trouvés.";
}

}  // namespace acquire
