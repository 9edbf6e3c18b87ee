#include "app/cmdParcourir_Click.h"

#include "db/DossierImages.h"

namespace app {

void cmdParcourir_Click(db::EtatStockage& stockage, const db::Chemins& chemins, dialogues::Dialogues& dialogues) {
    if (!stockage.Text4.Text.empty()) static_cast<void>(db::dossierImages(stockage, chemins));  // written whole
    const std::string dossier = dialogues.choisitDossier("Dossier des images", stockage.Text4.Text);
    if (dossier.empty()) return;
    if (const auto refus = db::refusDansTmp(dossier, chemins))
        dialogues.MsgBox(*refus, dialogues::kExclamation);
    else
        stockage.Text4.Text = dossier;
}

}  // namespace app
