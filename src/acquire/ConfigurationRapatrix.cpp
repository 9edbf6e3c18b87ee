#include "acquire/ConfigurationRapatrix.h"

#include "acquire/AdresseRecherche.h"
#include "util/Texte.h"

#include <algorithm>

namespace acquire {

bool seDitEn1252(const std::string& texte) {
    const std::string octets = util::vers1252(texte);
    return std::count(octets.begin(), octets.end(), '?') == std::count(texte.begin(), texte.end(), '?') &&
           octets.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
}

std::string configurationRapatrix(const DemandeRapatrix& demande) {
    const std::string lignes[] = {
        "FICHIER_CONFIG_SUPPR=O",
        "FICHIER_LISTE_NOM=" + demande.adresse,
        "FICHIER_LISTE_LOCAL_SUPPR=O",
        "RECUPERE_PARAMETRES_LISTE=N",
        "CHEMIN_DESTINATION_FICHIER_SOURCE=" + demande.dossierTmp,
        "REP_TMP=" + demande.dossierTmp,
        std::string("LANCER_TELECHARGEMENT_DEMARRAGE=") + (demande.lancerAuDemarrage ? "O" : "N"),
        "COMPARER_CONSERVER_LIENS_HTTP=O",
        std::string("ADRESSE_BASE_LIENS_INTERNET=") + kSiteMovieCovers,
        "SUPPR_LIENS_DIFF_TXT=/film/",
        "CONSERVER_LIEN_TELECHARGE=N",
        "SUPPR_LIENS_DIFF_TXT2=/getzip.html/",
        "CONSERVER_UNE_SEULE_EXTENSION=zip",
        "DECOMPRESSER_LIEN_ZIP=O",
        "PAUSE_ENTRE_CHAQUE_TELECHARGEMENT=O",
        "NB_FICHIERS_TELECHARGES_AVANT_PAUSE=1",
        "DUREE_PAUSE_ENTRE_TELECHARGEMENT=5",
        "AFFICHE_RESULTAT=O",
        "NUM_COLONNE_AFFICHEE=2",
        "NUM_COLONNE_TELECHARGEE=1",
        "CALCULER_TAILLE_SELECTION=N",
        "LANCER_APRES_TELECHARGEMENT=N",
        "PAUSE_SELON_TAILLE=N",
        "TITRE_TELECHARGEMENT=Cliquez sur \"Rechercher\" pour rechercher les informations depuis MovieCovers.#Les "
        "téléchargements depuis MovieCovers sont régulièrement mis en pause car leur serveur rejette les requêtes trop "
        "rapides ou trop fréquentes."};
    std::string texte;
    for (const std::string& ligne : lignes)
        texte += ligne + "\r\n";
    return util::vers1252(texte);
}

}  // namespace acquire
