#include "app/cmdParcourir_Click.h"

namespace app {

void cmdParcourir_Click(db::EtatStockage& stockage, dialogues::Dialogues& dialogues) {
    const std::string dossier = dialogues.choisitDossier("Dossier des images", stockage.Text4.Text);
    if (!dossier.empty()) stockage.Text4.Text = dossier;
}

}  // namespace app
