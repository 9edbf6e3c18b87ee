#include "export/DernierExport.h"

#include "platform/fichiers/Fichiers.h"

namespace exportation {

bool DernierExport::ecrit(const std::string& fichier, std::string_view octets) {
    if (!fichiers::remplace(fichier, octets)) {
        m_avis.montre("Le fichier " + fichier + " n'a pas pu être écrit.");
        return false;
    }
    annonce("Fichier créé : ", fichier);
    return true;
}

void DernierExport::annonce(const std::string& debut, const std::string& chemin) {
    m_avis.montre(
        debut + chemin,
        {{"Ouvrir", [this, chemin] { m_lanceFichier("\"" + chemin + "\"", true, "open", "", "", "2", false); }, true},
         {"Afficher le dossier", [this, chemin] { ouvreDossier(chemin); }, true}});
}

void DernierExport::ouvreDossier(const std::string& fichier) {
    const std::string dossier = fichier.substr(0, fichier.rfind('/') + 1);
    if (m_documents.ouvreFichier(dossier, dossier) != systeme::Ouverture::Faite)
        m_dialogues.MsgBox("Le dossier " + dossier + " n'a pas pu être ouvert.", dialogues::kExclamation);
}

}  // namespace exportation
