#include "app/LigneDeCommande.h"

#include "app/Aide.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/Adresses.h"

namespace app {

namespace {

constexpr const char* kAide =
    "Utilisation : ambrelis [FICHE.FILM | DOSSIER]...\n"
    "Ouvre la fenêtre d'Ambrelis et importe les fiches .FILM nommées, ou celles des dossiers nommés.\n"
    "Si Ambrelis est déjà ouvert, c'est lui qui les importe.\n"
    "\n"
    "  --help     affiche cette aide\n"
    "  --version  affiche la version\n"
    "\n"
    "Tout autre mot est un fichier, même s'il commence par « - ».\n";

std::string reponseA(const std::vector<std::string>& mots) {
    if (mots.size() != 1) return "";
    if (mots.front() == "--help") return kAide;
    if (mots.front() == "--version") return "Ambrelis " + texteVersion() + "\n";
    return "";
}

}  // namespace

Appel lisAppel(const std::vector<std::string>& mots) {
    Appel appel{reponseA(mots), {}};
    if (!appel.reponse.empty()) return appel;
    for (std::size_t i = !mots.empty() && mots.front() == "--" ? 1 : 0; i < mots.size(); ++i) {
        if (mots[i].empty()) continue;  // would name the current folder
        const auto chemin = systeme::cheminDeLAdresse(mots[i]);
        appel.chemins.push_back(chemin ? *chemin : fichiers::absolu(mots[i]));
    }
    return appel;
}

}  // namespace app
