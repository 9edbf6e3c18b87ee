#include "export/DernierExport.h"

#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"
#include "view/LanceFichier.h"

namespace exportation {

namespace {

void ouvreDossier(const db::Contexte& c, const std::string& fichier) {
    const std::string dossier = fichier.substr(0, fichier.rfind('/') + 1);
    if (c.documents.ouvreFichier(dossier, dossier) != systeme::Ouverture::Faite)
        c.dialogues.MsgBox("Le dossier " + dossier + " n'a pas pu être ouvert.", dialogues::kExclamation);
}

}  // namespace

bool ecritExport(const db::Contexte& c, const std::string& fichier, std::string_view octets) {
    bool ecrit = false;
    db::attente(c)([&] { ecrit = fichiers::remplace(fichier, octets); });
    if (!ecrit) {
        c.avis.montre("Le fichier " + fichier + " n'a pas pu être écrit.");
        return false;
    }
    annonceExport(c, "Fichier créé : ", fichier);
    return true;
}

void annonceExport(const db::Contexte& c, const std::string& debut, const std::string& chemin) {
    c.avis.montre(
        debut + chemin,
        {{"Ouvrir", [c, chemin] { view::LanceFichier(c, "\"" + chemin + "\"", true, "open", "", "", "2", false); },
          true},
         {"Afficher le dossier", [c, chemin] { ouvreDossier(c, chemin); }, true}});
}

}  // namespace exportation
