#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace rapatrix {

// What a search is told by the configuration file it is given: lines "KEY=value" ended by CR LF, in Windows-1252.
// Texts are given in UTF-8. Unknown keys are passed over; what a key leaves out keeps the value below. Whatever
// COMPARER_CONSERVER_LIENS_HTTP says, only http and https are followed; no size is computed beforehand, nothing is read
// from the result page but its links, and nothing is started afterwards, which is what the four keys left out ask for.
struct Reglages {
    bool supprimeConfiguration = false;  // FICHIER_CONFIG_SUPPR: the file itself, once read
    std::string adresseListe;            // FICHIER_LISTE_NOM: of the result page
    bool supprimeListe = true;           // FICHIER_LISTE_LOCAL_SUPPR: no copy of the result page stays in `dossierTmp`
    std::string dossierFiches;           // CHEMIN_DESTINATION_FICHIER_SOURCE
    std::string dossierTmp;              // REP_TMP
    bool rechercheAuDemarrage = false;   // LANCER_TELECHARGEMENT_DEMARRAGE
    std::string adresseBase;             // ADRESSE_BASE_LIENS_INTERNET: what relative links start from
    std::string signeFiche = "/film/";   // SUPPR_LIENS_DIFF_TXT: what the address of a film's page holds
    std::string signeArchive = "/getzip.html/";  // SUPPR_LIENS_DIFF_TXT2: what the address of its archive holds
    bool gardeLiensTelecharges = false;          // CONSERVER_LIEN_TELECHARGE: a film received stays in the list
    std::string extension = "zip";               // CONSERVER_UNE_SEULE_EXTENSION: of what is downloaded
    bool decompresse = true;                     // DECOMPRESSER_LIEN_ZIP
    bool pause = true;                           // PAUSE_ENTRE_CHAQUE_TELECHARGEMENT
    int fichiersAvantPause = 1;                  // NB_FICHIERS_TELECHARGES_AVANT_PAUSE, at least 1
    int dureePause = 5;                          // DUREE_PAUSE_ENTRE_TELECHARGEMENT, in seconds, 0 to 3600
    bool afficheResultat = true;                 // AFFICHE_RESULTAT: the user chooses; else all is downloaded
    int colonneAffichee = 2;                     // NUM_COLONNE_AFFICHEE: 1 is the address, 2 its text
    int colonneTelechargee = 1;                  // NUM_COLONNE_TELECHARGEE
    std::string titre;                           // TITRE_TELECHARGEMENT, "#" made a line break
};

// Nothing when the text tells neither what to look for nor where to put it.
[[nodiscard]] std::optional<Reglages> litReglages(std::string_view octets);

}  // namespace rapatrix
