#include "db/CheminAEcrire.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace db {

namespace {

// "Fichiers TXT|*.txt"
std::string filtre(const std::string& extension) {
    return "Fichiers " + util::majuscules(extension.substr(1)) + "|*" + extension;
}

std::string choisitLaPlace(const Contexte& c, const dialogues::DemandeChemin& demande, const std::string& tape) {
    const std::string nom = fichiers::nomDeFichier(tape) + (demande.extensionAjoutee ? demande.extension : "");
    std::string choisi = c.dialogues.choisitFichier(
        {.titre = demande.titre, .filtre = filtre(demande.extension), .dossier = "", .peutCreer = true, .nom = nom});
    if (demande.extensionAjoutee && choisi.ends_with(demande.extension))
        choisi.resize(choisi.size() - demande.extension.size());
    return choisi;
}

}  // namespace

std::string demandeCheminAEcrire(const Contexte& c, const dialogues::DemandeChemin& demande) {
    for (dialogues::DemandeChemin reprise = demande;;) {
        const std::string tape = c.dialogues.demandeChemin(reprise);
        if (!fichiers::estCheminWindows(tape)) return fichiers::cheminTape(tape, c.chemins.dossier);
        if (std::string place = choisitLaPlace(c, demande, tape); !place.empty()) return place;
        reprise.defaut = tape;
    }
}

}  // namespace db
