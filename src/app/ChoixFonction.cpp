#include "app/ChoixFonction.h"

#include "acquire/ImporterAncienneBase.h"
#include "acquire/cmdTelecharge_Click.h"
#include "app/LogicielsExternes.h"
#include "app/Saisies.h"
#include "browse/AfficheAccueil.h"
#include "edit/Command13_Click.h"

namespace app {

namespace {

void montre(const Contexte& c, ecran::Cadre EtatFonctions::*panneau) {
    EtatFonctions& fonctions = c.etats.fonctions;
    browse::AfficheAccueil(c);
    c.panneaux.montre(c.panneaux.frameListeFonctions);
    for (const auto cadre : {&EtatFonctions::frameDivers, &EtatFonctions::frameOutils, &EtatFonctions::frameConfig})
        (fonctions.*cadre).Visible = cadre == panneau;
}

void metEnGras(const Contexte& c, std::size_t bouton) {
    auto& boutons = c.etats.fonctions.cmdConfig;
    for (std::size_t i = 0; i < boutons.size(); ++i)
        boutons[i].FontBold = i == bouton;
}

}  // namespace

void ChoixFonction1_Divers(const Contexte& c) {
    montreVoletAjout(c);
    edit::Command13_Click(c, 0);
    acquire::ouvrePageTelechargement(c);
}

void ChoixFonction2_Outils(const Contexte& c) {
    montre(c, &EtatFonctions::frameOutils);
    metEnGras(c, 0);
}

void ChoixFonction3_Config(const Contexte& c) {
    montre(c, &EtatFonctions::frameConfig);
    metEnGras(c, 1);
    montreLogiciels(c);
}

void cmdAfficherFonctions_Click(const Contexte& c) {
    ChoixFonction1_Divers(c);
}

void cmdConfigurer_Click(const Contexte& c) {
    ChoixFonction2_Outils(c);
}

void cmdConfig_Click(const Contexte& c, int indice) {
    if (indice == 0)
        ChoixFonction2_Outils(c);
    else
        ChoixFonction3_Config(c);
}

void Command13_Click(const Contexte& c, int indice) {
    edit::Command13_Click(c, indice);
    acquire::ouvrePageTelechargement(c);
    c.saisies.retient();
    if (indice == 2) acquire::proposeImportAncienneBase(c);
}

void montreVoletAjout(const Contexte& c) {
    montre(c, &EtatFonctions::frameDivers);
}

}  // namespace app
