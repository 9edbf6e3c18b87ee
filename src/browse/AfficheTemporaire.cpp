#include "browse/AfficheTemporaire.h"

#include "db/AfficheVoisine.h"
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

}  // namespace

void AfficheTemporaire::efface() {
    fichiers::supprime(m_chemins.afficheTmp);
    m_attendue = false;
}

void AfficheTemporaire::depuis(std::string_view affiche) {
    efface();
    if (affiche.empty()) return;
    if (!db::estDansLaBase(affiche))
        depuisFichier(affiche);
    else if (affiche.size() > db::kTaillePrefixe)
        depuisOctets(affiche.substr(db::kTaillePrefixe));
}

// In the images folder, else where it came with the base.
std::optional<fichiers::Place> AfficheTemporaire::cherche(std::string_view affiche, const std::string& dossier) const {
    const auto fichier = db::fichierAffiche(dossier, affiche);
    return fichier ? fichier : db::afficheVoisine(m_chemins.base, affiche);
}

void AfficheTemporaire::depuisFichier(std::string_view affiche) {
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    const std::string chemin = cheminVoulu(affiche, dossier, m_stockage);
    const auto fichier = cherche(affiche, dossier);
    if (!fichier) {
        m_dialogues.MsgBox("Le fichier image n'existe plus (" + chemin + ") !", dialogues::kExclamation);
        return;
    }
    if (const auto octets = fichiers::litSansLien(fichier->chemin, db::kTailleMaxImage)) return depuisOctets(*octets);
    m_attendue = true;
    m_avis.montre("L'affiche n'a pas pu être lue (" + chemin + ").");
}

// "Tmp" may have gone since the start: it is made again.
void AfficheTemporaire::depuisOctets(std::string_view octets) {
    efface();
    m_attendue = true;
    if (fichiers::ecrit(m_chemins.afficheTmp, octets)) return;
    if (fichiers::assureDossierPrive(m_chemins.dossierTmp) && fichiers::ecrit(m_chemins.afficheTmp, octets)) return;
    const std::string raison = fichiers::raisonDeLEchec();
    fichiers::supprime(m_chemins.afficheTmp);  // what was begun of it
    m_avis.montre("L'affiche ne peut pas être montrée : " + m_chemins.dossierTmp + " n'a pas pu être écrit (" + raison +
                  ").");
}

std::optional<std::string> AfficheTemporaire::octets() const {
    return fichiers::litSansLien(m_chemins.afficheTmp, db::kTailleMaxImage);
}

}  // namespace browse
