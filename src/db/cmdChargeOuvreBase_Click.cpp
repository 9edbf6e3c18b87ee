#include "db/cmdChargeOuvreBase_Click.h"

#include "db/BaseNeuve.h"
#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <optional>

namespace db {

namespace {

constexpr const char* kSurDeuxLignes =
    "Le chemin de ce fichier contient un saut de ligne : Ambrelis ne pourrait pas le retenir. Renommez le fichier ou "
    "son dossier, puis recommencez.";

using RapportDAncienne = std::optional<std::string>;  // of a conversion, to be shown once its result is open

// The name with its ending, empty when cancelled.
std::string choisitUneBase(const Contexte& c) {
    std::string nom = c.dialogues.choisitFichier({.titre = "Ouvrir/Créer une base de données",
                                                  .filtre = "Fichiers de base de données|*.mdb",
                                                  .dossier = c.chemins.dossier,
                                                  .peutCreer = true});
    if (!nom.empty() && !util::finitPar(util::minuscules(nom), ".mdb")) nom += ".mdb";
    return nom;
}

bool estRefusee(const Contexte& c, const std::string& nom) {
    const char* raison = c.chemins.estDansTmp(nom)                        ? kBaseDansTmp
                         : nom.find_first_of("\r\n") != std::string::npos ? kSurDeuxLignes
                                                                          : nullptr;
    if (raison) c.dialogues.MsgBox(raison, dialogues::kExclamation);
    return raison != nullptr;
}

bool creeSiVoulue(const Contexte& c, const std::string& nom) {
    if (c.dialogues.MsgBox("Le fichier " + nom + " n'existe pas. Voulez-vous le créer ?", dialogues::kQuestion) !=
        dialogues::kOui)
        return false;
    const BaseNeuve issue = creeDepuisLeModele(c.chemins, nom);
    if (issue == BaseNeuve::SansModele)
        c.dialogues.MsgBox("Le fichier modèle n'a pas été trouvé (" + c.chemins.modele + ").", dialogues::kExclamation);
    else if (issue != BaseNeuve::Faite)
        c.dialogues.MsgBox(raisonDeLEchec(issue, c.chemins, nom), dialogues::kCritique);
    return issue == BaseNeuve::Faite;
}

// Makes sure that it can be opened: makes it, when the user agrees, or converts it.
bool prepare(const Contexte& c, const std::string& nom, RapportDAncienne& rapport) {
    if (estRefusee(c, nom)) return false;
    if (!estJet(nom)) return fichiers::existe(nom) ? sOuvre(c, nom) : creeSiVoulue(c, nom);
    rapport = convertitJet(c, nom);
    return rapport && sOuvre(c, nom);
}

std::string texteDuRefus(const Contexte& c, const std::string& nom) {
    return "La base " + nom + " n'a pas pu être ouverte" + (c.base.raison.empty() ? "" : " : " + c.base.raison);
}

void ouvreCommeSienne(const Contexte& c, const std::string& nom) {
    c.chemins.base = nom;
    c.chemins.baseAbsente.clear();
    ouvreLaBase(c);
}

void remplaceLaBase(const Contexte& c, const std::string& nom) {
    c.base.ferme();
    c.rafraichissement.AfficheAccueil();
    ouvreCommeSienne(c, nom);
    c.rafraichissement.reconstruitListe();
    c.rafraichissement.RaffraichitBoitesDeroulantes();
    c.rafraichissement.AfficheNbTitres();
}

}  // namespace

void cmdChargeOuvreBase_Click(const Contexte& c) {
    if (const std::string nom = choisitUneBase(c); !nom.empty()) changeDeBase(c, nom);
}

void changeDeBase(const Contexte& c, const std::string& nom) {
    if (util::egalSansCasse(nom, c.chemins.base)) {
        c.chemins.baseAbsente.clear();  // the user wants this one
        return;
    }
    RapportDAncienne rapport;
    c.base.raison.clear();
    if (prepare(c, nom, rapport))
        remplaceLaBase(c, nom);
    else if (!c.base.raison.empty())  // the box says that it failed, not why
        c.avis.montre(texteDuRefus(c, nom) + ".");
    if (rapport) c.dialogues.MsgBox(*rapport, dialogues::kInformation);
}

bool ouvreUneAutreBase(const Contexte& c) {
    const std::string question = texteDuRefus(c, c.chemins.base) + ".\nVoulez-vous en choisir une autre ?";
    while (c.dialogues.MsgBox(question, dialogues::kQuestion) == dialogues::kOui) {
        const std::string nom = choisitUneBase(c);
        if (nom.empty()) return false;
        RapportDAncienne rapport;
        const bool prete = prepare(c, nom, rapport);
        if (prete) ouvreCommeSienne(c, nom);
        if (rapport) c.dialogues.MsgBox(*rapport, dialogues::kInformation);
        if (prete) return true;
    }
    return false;
}

}  // namespace db
