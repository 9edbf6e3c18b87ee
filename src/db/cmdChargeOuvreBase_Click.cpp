#include "db/cmdChargeOuvreBase_Click.h"

#include "db/BaseNeuve.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace db {

namespace {

constexpr const char* kSurDeuxLignes =
    "Le chemin de ce fichier contient un saut de ligne : Ambrelis ne pourrait pas le retenir. Renommez le fichier ou "
    "son dossier, puis recommencez.";

}  // namespace

void cmdChargeOuvreBase_Click::operator()() {
    if (const std::string nom = choisit(); !nom.empty()) ouvre(nom);
}

void cmdChargeOuvreBase_Click::ouvre(const std::string& nom) {
    if (util::egalSansCasse(nom, m_chemins.base)) {
        m_chemins.baseAbsente.clear();  // the user wants this one
        return;
    }
    Rapport rapport;
    if (prepare(nom, rapport)) remplaceLaBase(nom);
    if (rapport) m_dialogues.MsgBox(*rapport, dialogues::kInformation);
}

bool cmdChargeOuvreBase_Click::ouvreUneAutre() {
    const std::string raison = m_ouvertureBase.raison();
    const std::string question = "La base " + m_chemins.base + " n'a pas pu être ouverte" +
                                 (raison.empty() ? "" : " : " + raison) + ".\nVoulez-vous en choisir une autre ?";
    while (m_dialogues.MsgBox(question, dialogues::kQuestion) == dialogues::kOui) {
        const std::string nom = choisit();
        if (nom.empty()) return false;
        Rapport rapport;
        const bool prete = prepare(nom, rapport);
        if (prete) {
            prends(nom);
            m_ouvertureBase();
        }
        if (rapport) m_dialogues.MsgBox(*rapport, dialogues::kInformation);
        if (prete) return true;
    }
    return false;
}

bool cmdChargeOuvreBase_Click::prepare(const std::string& nom, Rapport& rapport) {
    if (estRefusee(nom)) return false;
    if (!OuvertureJet::estJet(nom)) return fichiers::existe(nom) ? m_ouvertureBase.sOuvre(nom) : cree(nom);
    rapport = m_ouvertureJet(nom);
    return rapport && m_ouvertureBase.sOuvre(nom);
}

bool cmdChargeOuvreBase_Click::estRefusee(const std::string& nom) {
    const char* raison = m_chemins.estDansTmp(nom)                        ? kBaseDansTmp
                         : nom.find_first_of("\r\n") != std::string::npos ? kSurDeuxLignes
                                                                          : nullptr;
    if (raison) m_dialogues.MsgBox(raison, dialogues::kExclamation);
    return raison != nullptr;
}

std::string cmdChargeOuvreBase_Click::choisit() {
    std::string nom = m_dialogues.choisitFichier({.titre = "Ouvrir/Créer une base de données",
                                                  .filtre = "Fichiers de base de données|*.mdb",
                                                  .dossier = m_chemins.dossier,
                                                  .peutCreer = true});
    if (!nom.empty() && !util::finitPar(util::minuscules(nom), ".mdb")) nom += ".mdb";
    return nom;
}

bool cmdChargeOuvreBase_Click::cree(const std::string& nom) {
    if (m_dialogues.MsgBox("Le fichier " + nom + " n'existe pas. Voulez-vous le créer ?", dialogues::kQuestion) !=
        dialogues::kOui)
        return false;
    const BaseNeuve issue = creeDepuisLeModele(m_chemins, nom);
    if (issue == BaseNeuve::SansModele)
        m_dialogues.MsgBox("Le fichier modèle n'a pas été trouvé (" + m_chemins.modele + ").", dialogues::kExclamation);
    else if (issue != BaseNeuve::Faite)
        m_dialogues.MsgBox(raisonDeLEchec(issue, m_chemins, nom), dialogues::kCritique);
    return issue == BaseNeuve::Faite;
}

void cmdChargeOuvreBase_Click::remplaceLaBase(const std::string& nom) {
    m_base.ferme();
    m_rafraichissement.AfficheAccueil();
    prends(nom);
    m_ouvertureBase();
    m_rafraichissement.reconstruitListe();
    m_rafraichissement.RaffraichitBoitesDeroulantes();
    m_rafraichissement.AfficheNbTitres();
}

void cmdChargeOuvreBase_Click::prends(const std::string& nom) {
    m_chemins.base = nom;
    m_chemins.baseAbsente.clear();
}

}  // namespace db
