#include "view/cmdSauverImage_Click.h"

#include "platform/fichiers/Fichiers.h"

namespace view {

void cmdSauverImage_Click(const browse::EtatFiche& fiche, const db::Chemins& chemins, dialogues::Dialogues& dialogues) {
    static constexpr const char* kTitre = "Sauvegarde affiche JPG";
    const std::string destination =
        dialogues.InputBox("Entrez un chemin de destination", kTitre, fiche.captionAffiche + ".jpg");
    if (destination.empty()) return;
    if (fichiers::copie(chemins.afficheTmp, destination))
        dialogues.MsgBox("Fichier sauvegardé.", dialogues::kInformation, kTitre);
    else
        dialogues.MsgBox("Erreur lors de la sauvegarde.", dialogues::kCritique, kTitre);
}

}  // namespace view
