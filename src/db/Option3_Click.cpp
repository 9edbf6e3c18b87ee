#include "db/Option3_Click.h"

#include "platform/fichiers/Fichiers.h"

namespace db {

void Option3_Click(const Contexte& c) {
    EtatStockage& stockage = c.stockage;
    if (stockage.Text4.Text.empty()) {
        fichiers::creeDossier(c.chemins.dansDossier("Images"));
        stockage.Text4.Text = c.chemins.dansDossier("Images/");
    }
    const bool dansUnDossier = stockage.Option3[1].Value;
    stockage.Text4.Enabled = dansUnDossier;
    stockage.cmdParcourir.Enabled = dansUnDossier;
}

}  // namespace db
