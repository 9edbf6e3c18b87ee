#include "rapatrix/Reglages.h"

#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <map>

namespace rapatrix {

namespace {

using Cles = std::map<std::string, std::string, std::less<>>;

Cles litCles(std::string_view octets) {
    Cles cles;
    while (!octets.empty()) {
        const std::size_t fin = std::min(octets.find('\n'), octets.size());
        std::string_view ligne = octets.substr(0, fin);
        octets.remove_prefix(std::min(fin + 1, octets.size()));
        if (ligne.ends_with('\r')) ligne.remove_suffix(1);
        const std::size_t egal = ligne.find('=');
        if (egal != std::string_view::npos)
            cles.try_emplace(std::string(ligne.substr(0, egal)), ligne.substr(egal + 1));
    }
    return cles;
}

void litTexte(const Cles& cles, std::string_view cle, std::string& valeur) {
    if (const auto trouvee = cles.find(cle); trouvee != cles.end()) valeur = util::depuis1252(trouvee->second);
}

void litOuiNon(const Cles& cles, std::string_view cle, bool& valeur) {
    if (const auto trouvee = cles.find(cle); trouvee != cles.end()) valeur = trouvee->second == "O";
}

void litNombre(const Cles& cles, std::string_view cle, int& valeur, int minimum, int maximum) {
    if (const auto trouvee = cles.find(cle); trouvee != cles.end())
        valeur = std::clamp(util::valEntier(trouvee->second), minimum, maximum);
}

}  // namespace

std::optional<Reglages> litReglages(std::string_view octets) {
    const Cles cles = litCles(octets);
    Reglages r;
    litOuiNon(cles, "FICHIER_CONFIG_SUPPR", r.supprimeConfiguration);
    litTexte(cles, "FICHIER_LISTE_NOM", r.adresseListe);
    litOuiNon(cles, "FICHIER_LISTE_LOCAL_SUPPR", r.supprimeListe);
    litTexte(cles, "CHEMIN_DESTINATION_FICHIER_SOURCE", r.dossierFiches);
    litTexte(cles, "REP_TMP", r.dossierTmp);
    litOuiNon(cles, "LANCER_TELECHARGEMENT_DEMARRAGE", r.rechercheAuDemarrage);
    litTexte(cles, "ADRESSE_BASE_LIENS_INTERNET", r.adresseBase);
    litTexte(cles, "SUPPR_LIENS_DIFF_TXT", r.signeFiche);
    litTexte(cles, "SUPPR_LIENS_DIFF_TXT2", r.signeArchive);
    litOuiNon(cles, "CONSERVER_LIEN_TELECHARGE", r.gardeLiensTelecharges);
    litTexte(cles, "CONSERVER_UNE_SEULE_EXTENSION", r.extension);
    litOuiNon(cles, "DECOMPRESSER_LIEN_ZIP", r.decompresse);
    litOuiNon(cles, "PAUSE_ENTRE_CHAQUE_TELECHARGEMENT", r.pause);
    litNombre(cles, "NB_FICHIERS_TELECHARGES_AVANT_PAUSE", r.fichiersAvantPause, 1, 1000);
    litNombre(cles, "DUREE_PAUSE_ENTRE_TELECHARGEMENT", r.dureePause, 0, 3600);
    litOuiNon(cles, "AFFICHE_RESULTAT", r.afficheResultat);
    litNombre(cles, "NUM_COLONNE_AFFICHEE", r.colonneAffichee, 1, 2);
    litNombre(cles, "NUM_COLONNE_TELECHARGEE", r.colonneTelechargee, 1, 2);
    litTexte(cles, "TITRE_TELECHARGEMENT", r.titre);
    r.titre = util::remplace(r.titre, "#", "\n");
    if (r.adresseListe.empty() || r.dossierFiches.empty()) return std::nullopt;
    return r;
}

}  // namespace rapatrix
