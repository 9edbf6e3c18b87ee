#include "view/cmdSauverImage_Click.h"

#include "db/CheminAEcrire.h"
#include "platform/fichiers/Fichiers.h"

namespace view {

std::string cmdSauverImage_Click(const browse::EtatFiche& fiche, const db::Chemins& chemins,
                                 dialogues::Dialogues& dialogues) {
    static constexpr const char* kTitre = "Sauvegarde affiche JPG";
    std::string destination = db::demandeCheminAEcrire(dialogues,
                                                       {.invite = "Entrez un chemin de destination",
                                                        .titre = kTitre,
                                                        .defaut = fiche.captionAffiche + ".jpg",
                                                        .extension = ".jpg"},
                                                       chemins);
    if (destination.empty()) return {};
    const auto image = fichiers::litSansLien(chemins.afficheTmp);
    if (!image || !fichiers::remplace(destination, *image)) {
        dialogues.MsgBox("Erreur lors de la sauvegarde.", dialogues::kCritique, kTitre);
        return {};
    }
    dialogues.MsgBox("Fichier sauvegardé.", dialogues::kInformation, kTitre);
    return destination;
}

}  // namespace view
