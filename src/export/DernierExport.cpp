#include "export/DernierExport.h"

#include "platform/fichiers/Fichiers.h"

namespace exportation {

bool DernierExport::ecrit(const std::string& fichier, std::string_view octets) {
    const bool ecrit = fichiers::remplace(fichier, octets);
    m_fichier = fichiers::absolu(fichier);
    m_etat.lblExport.Caption =
        ecrit ? "Fichier créé : " + m_fichier : "Le fichier " + m_fichier + " n'a pas pu être écrit.";
    m_etat.cmdOuvrirExport.Visible = m_etat.cmdDossierExport.Visible = ecrit;
    m_etat.frameExport.Visible = true;
    return ecrit;
}

void DernierExport::cmdOuvrirExport_Click() {
    m_lanceFichier("\"" + m_fichier + "\"", true, "open", "", "", "2", false);
}

void DernierExport::cmdDossierExport_Click() {
    const std::string dossier = m_fichier.substr(0, m_fichier.rfind('/') + 1);
    if (m_documents.ouvreFichier(dossier, dossier) != systeme::Ouverture::Faite)
        m_dialogues.MsgBox("Le dossier " + dossier + " n'a pas pu être ouvert.", dialogues::kExclamation);
}

void DernierExport::cmdFermerExport_Click() {
    m_etat.frameExport.Visible = false;
}

}  // namespace exportation
