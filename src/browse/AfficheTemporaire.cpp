#include "browse/AfficheTemporaire.h"

#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

namespace browse {

namespace {

constexpr std::size_t kNomMax = 255;  // bytes of a name in a message

// As the value says it, for the message: without a folder of images, under the one that was meant.
std::string cheminVoulu(std::string_view affiche, const std::string& dossier, const db::EtatStockage& stockage) {
    const std::string nom = db::nomDansLeDossier(affiche);
    return (dossier.empty() ? util::avecSeparateur(stockage.Text4.Text.substr(0, kNomMax)) : dossier) +
           (nom.empty() ? std::string(affiche.substr(std::min(db::kTaillePrefixe, affiche.size()), kNomMax)) : nom);
}

void depuisFichier(const Contexte& c, std::string_view affiche) {
    const std::string dossier = db::dossierImages(c);
    const std::string chemin = cheminVoulu(affiche, dossier, c.stockage);
    auto fichier = db::fichierAffiche(dossier, affiche);
    if (!fichier) fichier = db::afficheVoisine(c.chemins.base, affiche);  // where it came with the base
    if (!fichier) {
        c.dialogues.MsgBox("Le fichier image n'existe plus (" + chemin + ") !", dialogues::kExclamation);
        return;
    }
    if (const auto octets = fichiers::litSansLien(fichier->chemin, db::kTailleMaxImage))
        return ecritAfficheTemporaire(c, *octets);
    c.film.afficheAttendue = true;
    c.avis.montre("L'affiche n'a pas pu être lue (" + chemin + ").");
}

}  // namespace

void effaceAfficheTemporaire(const Contexte& c) {
    fichiers::supprime(c.chemins.afficheTmp);
    c.film.afficheAttendue = false;
}

void prepareAfficheTemporaire(const Contexte& c, std::string_view affiche) {
    effaceAfficheTemporaire(c);
    if (affiche.empty()) return;
    if (!db::estDansLaBase(affiche))
        depuisFichier(c, affiche);
    else if (affiche.size() > db::kTaillePrefixe)
        ecritAfficheTemporaire(c, affiche.substr(db::kTaillePrefixe));
}

// "Tmp" may have gone since the start: it is made again.
void ecritAfficheTemporaire(const Contexte& c, std::string_view octets) {
    effaceAfficheTemporaire(c);
    c.film.afficheAttendue = true;
    const db::Chemins& chemins = c.chemins;
    if (fichiers::ecrit(chemins.afficheTmp, octets)) return;
    if (fichiers::assureDossierPrive(chemins.dossierTmp) && fichiers::ecrit(chemins.afficheTmp, octets)) return;
    const std::string raison = fichiers::raisonDeLEchec();
    fichiers::supprime(chemins.afficheTmp);  // what was begun of it
    c.avis.montre("L'affiche ne peut pas être montrée : " + chemins.dossierTmp + " n'a pas pu être écrit (" + raison +
                  ").");
}

std::optional<std::string> litAfficheTemporaire(const Contexte& c) {
    return fichiers::litSansLien(c.chemins.afficheTmp, db::kTailleMaxImage);
}

}  // namespace browse
