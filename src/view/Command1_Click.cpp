#include "view/Command1_Click.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/LigneDeCommande.h"
#include "util/Texte.h"
#include "view/ChercheFichier.h"
#include "view/EchecLancement.h"

namespace view {

namespace {

constexpr int kFermer = 3;

// What a box can show of a stored path.
std::string montrable(const std::string& fichier) {
    constexpr std::size_t kCheminMax = 4096;  // bytes; the system's own limit
    return fichier.size() <= kCheminMax ? fichier
                                        : util::coupe(std::string_view(fichier).substr(0, kCheminMax), 1000) + "…";
}

// The words of a program of the table: a whole path, blanks included, where there is such a file; else a command line.
std::vector<std::string> motsDe(const std::string& logiciel) {
    if (fichiers::existe(logiciel)) return {*fichiers::trouve(logiciel)};
    const auto mots = systeme::decoupe(logiciel);
    return mots && !mots->empty() ? *mots : std::vector<std::string>{logiciel};
}

}  // namespace

void Command1_Click::operator()(int indice) {
    if (indice == kFermer) {
        m_etat.Visible = false;
        return;
    }
    const std::string& fichier = m_film.fichiers.at(static_cast<std::size_t>(indice));
    if (!fichier.empty()) ouvre(fichier);
}

void Command1_Click::ouvre(const std::string& fichier) {
    const std::string logiciel = m_extensions.logiciel(fichiers::extension(fichier));
    const auto chemin = chercheFichier(fichiers::cheminTape(fichier, ""), m_volumes.liste());
    if (!chemin) return refuse("Le fichier " + montrable(fichier) + " n'a pas été trouvé !");
    if (logiciel == kLogicielParDefaut)
        m_lanceFichier("\"" + *chemin + "\"", false, "open", "", "", "2", false);
    else
        lance(logiciel, *chemin);
}

void Command1_Click::lance(const std::string& logiciel, const std::string& chemin) {
    systeme::Commande commande{motsDe(logiciel), ""};
    commande.arguments.push_back(chemin);
    const systeme::Lancement issue = m_programmes.lance(commande);
    if (issue != systeme::Lancement::Fait) refuse(texteEchecLancement(issue, logiciel));
}

}  // namespace view
