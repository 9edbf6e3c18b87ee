#include "view/cmdSauverImage_Click.h"

#include "db/CheminAEcrire.h"
#include "platform/fichiers/Fichiers.h"

namespace view {

std::string cmdSauverImage_Click(const Contexte& c) {
    static constexpr const char* kTitre = "Sauvegarde affiche JPG";
    std::string destination = db::demandeCheminAEcrire(c, {.invite = "Entrez un chemin de destination",
                                                           .titre = kTitre,
                                                           .defaut = c.fiche.captionAffiche + ".jpg",
                                                           .extension = ".jpg"});
    if (destination.empty()) return {};
    const auto image = fichiers::litSansLien(c.chemins.afficheTmp);
    if (!image || !fichiers::remplace(destination, *image)) {
        c.dialogues.MsgBox("Erreur lors de la sauvegarde.", dialogues::kCritique, kTitre);
        return {};
    }
    c.dialogues.MsgBox("Fichier sauvegardé.", dialogues::kInformation, kTitre);
    return destination;
}

}  // namespace view
