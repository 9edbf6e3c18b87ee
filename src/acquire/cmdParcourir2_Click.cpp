#include "acquire/cmdParcourir2_Click.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"

namespace acquire {

void cmdParcourir2_Click(const Contexte& c) {
    const std::string dossier = c.dialogues.choisitDossier("Dossier des fiches de films", dossierDesFiches(c));
    if (dossier.empty()) return;
    c.ajout.txtCheminAjoutAuto.Text = dossier;
    montreNombreDeFiches(c);
}

void txtCheminAjoutAuto_Change(const Contexte& c) {
    montreNombreDeFiches(c);
}

bool remplaceCheminWindows(const Contexte& c) {
    const std::string& dossier = c.ajout.txtCheminAjoutAuto.Text;
    if (fichiers::estCheminWindows(dossier)) cmdParcourir2_Click(c);
    return !fichiers::estCheminWindows(dossier);
}

std::string dossierDesFiches(const Contexte& c) {
    return fichiers::cheminTape(c.ajout.txtCheminAjoutAuto.Text, c.chemins.dossier);
}

void montreNombreDeFiches(const Contexte& c) {
    const std::string dossier = dossierDesFiches(c);
    const bool existe = fichiers::dossierExiste(dossier);
    const long nombre = existe ? CompteFilmsRepertoire(dossier) : 0;
    c.ajout.fichesAImporter = nombre > 0;
    c.ajout.lblNbFilms.Caption = dossier.empty() ? ""
                                 : !existe       ? "Ce dossier n'existe pas."
                                                 : texteNombreDeFiches(nombre);
}

}  // namespace acquire
