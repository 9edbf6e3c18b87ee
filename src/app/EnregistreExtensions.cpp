#include "app/EnregistreExtensions.h"

#include "platform/fichiers/Fichiers.h"

namespace app {

void enregistreExtensions(const TableExtensions& table, std::size_t nombre, const db::Chemins& chemins,
                          dialogues::Dialogues& dialogues) {
    const std::string chemin = chemins.dansDossier(kFichierExtensions);
    if (!fichiers::remplace(chemin, texteExtensions(table, nombre)))
        dialogues.MsgBox("La liste des logiciels externes n'a pas pu être enregistrée (" + chemin + ").",
                         dialogues::kCritique);
}

}  // namespace app
