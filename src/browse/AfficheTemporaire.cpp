#include "browse/AfficheTemporaire.h"

#include "db/AfficheVoisine.h"
#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::size_t kTaillePrefixe = 3;  // "JPG" or "STO"

}  // namespace

void AfficheTemporaire::efface() {
    fichiers::supprime(m_chemins.afficheTmp);
}

void AfficheTemporaire::depuis(std::string_view affiche) {
    efface();
    if (affiche.empty()) return;
    const std::string_view contenu = affiche.size() > kTaillePrefixe ? affiche.substr(kTaillePrefixe) : "";
    if (db::estDansLaBase(affiche))
        fichiers::ecrit(m_chemins.afficheTmp, contenu);
    else
        depuisFichier(std::string(contenu));
}

void AfficheTemporaire::depuisFichier(const std::string& nom) {
    const std::string chemin = db::dossierImages(m_stockage, m_chemins) + nom;
    if (fichiers::existe(chemin))
        fichiers::copie(chemin, m_chemins.afficheTmp);
    else if (const auto voisine = db::afficheVoisine(m_chemins.base, nom))
        fichiers::copie(*voisine, m_chemins.afficheTmp);
    else
        m_dialogues.MsgBox("Le fichier image n'existe plus (" + chemin + ") !", dialogues::kExclamation);
}

}  // namespace browse
