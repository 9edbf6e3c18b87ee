#include "export/ListeDesTitres.h"

namespace exportation {

std::string requeteListe(std::string_view clauseOrderBy) {
    return std::string(
               "SELECT * "
               "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 and "
               "Films.realisateur=Personnel.realisateur2 ORDER BY ")
        .append(clauseOrderBy)
        .append(" ;");
}

std::string demandeFichierListe(dialogues::Dialogues& dialogues, std::string_view extension) {
    std::string fichier = dialogues.demandeChemin(
        {.invite = "Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS",
         .titre = kTitreListe,
         .defaut = "",
         .extension = std::string(extension),
         .extensionAjoutee = true});
    return fichier.empty() ? fichier : fichier.append(extension);
}

}  // namespace exportation
