#include "export/ListeDesTitres.h"

#include "db/CheminAEcrire.h"

namespace exportation {

std::string requeteListe(std::string_view clauseOrderBy) {
    return std::string(
               "SELECT * "
               "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 and "
               "Films.realisateur=Personnel.realisateur2 ORDER BY ")
        .append(clauseOrderBy)
        .append(" ;");
}

std::string demandeFichierListe(dialogues::Dialogues& dialogues, const db::Chemins& chemins,
                                std::string_view extension) {
    std::string fichier = db::demandeCheminAEcrire(
        dialogues,
        {.invite = "Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS",
         .titre = kTitreListe,
         .defaut = "",
         .extension = std::string(extension),
         .extensionAjoutee = true},
        chemins);
    return fichier.empty() ? fichier : fichier.append(extension);
}

}  // namespace exportation
