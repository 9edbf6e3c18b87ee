#include "export/cmdCreeFichierTxt_Click.h"

#include "db/CheminAEcrire.h"
#include "export/DernierExport.h"
#include "export/TexteFiche.h"

namespace exportation {

void cmdCreeFichierTxt_Click(const Contexte& c) {
    static constexpr const char* kTitre = "Créer un fichier texte";
    if (!c.film.estUnFilm()) return;
    const std::string fichier =
        db::demandeCheminAEcrire(c, {.invite = "Entrez le chemin de destination du fichier texte.",
                                     .titre = kTitre,
                                     .defaut = c.film.titre + ".txt",
                                     .extension = ".txt"});
    if (fichier.empty() || !ecritExport(c, fichier, texteFiche(c.film.titre, c.fiche))) return;
    c.dialogues.MsgBox("Fichier créé !", dialogues::kInformation, kTitre);
}

}  // namespace exportation
