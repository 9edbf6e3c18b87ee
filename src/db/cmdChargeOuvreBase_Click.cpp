#include "db/cmdChargeOuvreBase_Click.h"

#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace db {

void cmdChargeOuvreBase_Click::operator()() {
    const std::string nom = choisit();
    if (nom.empty() || util::egalSansCasse(nom, m_chemins.base)) return;
    if (OuvertureJet::estJet(nom)) return convertitEtOuvre(nom);
    if (fichiers::existe(nom) ? m_ouvertureBase.sOuvre(nom) : cree(nom)) remplaceLaBase(nom);
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
    if (!fichiers::existe(m_chemins.modele)) {
        m_dialogues.MsgBox("Le fichier modèle n'a pas été trouvé (" + m_chemins.modele + ").", dialogues::kExclamation);
        return false;
    }
    if (!fichiers::copie(m_chemins.modele, nom)) {
        m_dialogues.MsgBox("Le fichier " + nom + " n'a pas pu être créé.", dialogues::kCritique);
        return false;
    }
    if (m_ouvertureBase.sOuvre(nom)) return true;
    fichiers::supprime(nom);  // a copy of a template that is no base
    return false;
}

void cmdChargeOuvreBase_Click::convertitEtOuvre(const std::string& nom) {
    const auto rapport = m_ouvertureJet(nom);
    if (!rapport) return;
    if (m_ouvertureBase.sOuvre(nom)) remplaceLaBase(nom);
    m_dialogues.MsgBox(*rapport, dialogues::kInformation);
}

void cmdChargeOuvreBase_Click::remplaceLaBase(const std::string& nom) {
    m_base.ferme();
    m_rafraichissement.AfficheAccueil();
    m_chemins.base = nom;
    m_ouvertureBase();
    m_rafraichissement.reconstruitListe();
    m_rafraichissement.RaffraichitBoitesDeroulantes();
    m_rafraichissement.AfficheNbTitres();
}

}  // namespace db
