#include "view/Command1_Click.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/LigneDeCommande.h"
#include "util/NomMontrable.h"
#include "util/Texte.h"
#include "view/ChercheFichier.h"
#include "view/LanceFichier.h"

namespace view {

namespace {

constexpr int kFermer = 3;

// What a box can show of a stored path.
std::string montrable(const std::string& fichier) {
    constexpr std::size_t kCheminMax = 4096;  // bytes; the system's own limit
    return util::nomMontrable(fichier.size() <= kCheminMax
                                  ? fichier
                                  : util::coupe(std::string_view(fichier).substr(0, kCheminMax), 1000) + "…");
}

// The words of a program of the table: a whole path, blanks included, where there is such a file; else a command line.
std::vector<std::string> motsDe(const std::string& logiciel) {
    if (fichiers::existe(logiciel)) return {*fichiers::trouve(logiciel)};
    const auto mots = systeme::decoupe(logiciel);
    return mots && !mots->empty() ? *mots : std::vector<std::string>{logiciel};
}

void refuse(const Contexte& c, const std::string& texte) {
    c.dialogues.MsgBox(texte, dialogues::kCritique);
}

void lance(const Contexte& c, const std::string& logiciel, const std::string& chemin) {
    systeme::Commande commande{motsDe(logiciel), ""};
    commande.arguments.push_back(chemin);
    const systeme::Lancement issue = c.programmes.lance(commande);
    if (issue != systeme::Lancement::Fait) refuse(c, texteEchecLancement(issue, logiciel));
}

void ouvre(const Contexte& c, const std::string& fichier) {
    const std::string logiciel = c.extensions.logiciel(fichiers::extension(fichier));
    const auto chemin = chercheFichier(fichiers::cheminTape(fichier, ""), c.volumes.liste());
    if (!chemin) return refuse(c, "Le fichier " + montrable(fichier) + " n'a pas été trouvé !");
    if (logiciel == kLogicielParDefaut)
        LanceFichier(c, "\"" + *chemin + "\"", false, "open", "", "", "2", false);
    else
        lance(c, logiciel, *chemin);
}

}  // namespace

void cmdFichiersFilm_Click(const Contexte& c) {
    c.fichiers.Visible = true;
    ++c.fichiers.presentations;
}

void Command1_Click(const Contexte& c, int indice) {
    if (indice == kFermer) {
        c.fichiers.Visible = false;
        return;
    }
    const std::string& fichier = c.film.fichiers.at(static_cast<std::size_t>(indice));
    if (!fichier.empty()) ouvre(c, fichier);
}

}  // namespace view
