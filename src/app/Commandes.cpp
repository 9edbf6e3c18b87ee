#include "app/Commandes.h"

#include "app/Saisies.h"
#include "browse/ChargeAffiche.h"
#include "browse/Label12_Click.h"
#include "browse/TreeView1.h"
#include "db/DossierImages.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "export/DernierExport.h"
#include "view/cmdRemplacerImage_Click.h"
#include "view/cmdSauverImage_Click.h"

namespace app {

namespace {

MenuContextuel menuDemande(browse::MenuArbre menu) {
    switch (menu) {
        case browse::MenuArbre::Film:
            return MenuContextuel::MenuClicDroitFilm;
        case browse::MenuArbre::Support:
            return MenuContextuel::MenuClicDroitSupport;
        case browse::MenuArbre::Genre:
            return MenuContextuel::MenuClicDroitGenre;
        case browse::MenuArbre::Aucun:
            break;
    }
    return MenuContextuel::Aucun;
}

}  // namespace

void cmdChargeOuvreBase_Click(const Contexte& c) {
    if (c.saisies.abandonneTout()) db::cmdChargeOuvreBase_Click(c);
}

void cmdParcourir_Click(const Contexte& c) {
    ecran::ZoneTexte& chemin = c.stockage.Text4;
    if (!chemin.Text.empty()) static_cast<void>(db::dossierImages(c));  // written whole
    const std::string dossier = c.dialogues.choisitDossier("Dossier des images", chemin.Text);
    if (dossier.empty()) return;
    if (const auto refus = db::refusDansTmp(dossier, c.chemins))
        c.dialogues.MsgBox(*refus, dialogues::kExclamation);
    else
        chemin.Text = dossier;
}

void cmdSauverImage_Click(const Contexte& c) {
    const std::string fichier = view::cmdSauverImage_Click(c);
    if (!fichier.empty()) exportation::annonceExport(c, "Affiche sauvegardée : ", fichier);
}

void Label12_Click(const Contexte& c) {
    if (c.fiche.Label12.Caption == browse::kImageIllisible)
        view::cmdRemplacerImage_Click(c);
    else
        browse::Label12_Click(c);
}

void TreeView1_NodeClick(const Contexte& c, int indice) {
    if (!c.arbreRelu) browse::TreeView1_NodeClick(c, indice);
}

void TreeView1_NodeCheck(const Contexte& c, int indice, bool coche) {
    if (c.arbreRelu)
        c.liste.TreeView1.coches.clear();
    else
        browse::TreeView1_NodeCheck(c, indice, coche);
}

void TreeView1_MouseUpDroit(const Contexte& c, int indice) {
    c.etats.menu = MenuContextuel::Aucun;
    if (!c.arbreRelu) c.etats.menu = menuDemande(browse::TreeView1_MouseUp(c, indice));
}

void cmdAvis_Click(const Contexte& c, int indice) {
    c.avis.cmdAvis_Click(static_cast<std::size_t>(indice));
}

void cmdFermerAvis_Click(const Contexte& c) {
    c.saisies.oublie();
    c.avis.retire();
}

}  // namespace app
