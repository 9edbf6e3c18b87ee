#include "app/Arret.h"

#include "app/Extensions.h"
#include "app/Reglages.h"
#include "platform/dao/ErreurDao.h"
#include "platform/fichiers/Fichiers.h"

namespace app {

namespace {

void fermeBase(const Contexte& c) {
    try {
        c.base.films.Close();
        c.base.base.Close();
    } catch (const dao::ErreurDao& erreur) {
        c.dialogues.MsgBox(erreur.texte());
    }
}

std::string reglages(const Contexte& c) {
    Reglages courants;
    courants.stockage = c.stockage.dansLaBase() ? 0 : 1;
    courants.dossierImages = c.stockage.Text4.Text;
    courants.largeur = c.etats.frmPrincipal.Width;
    courants.hauteur = c.etats.frmPrincipal.Height;
    courants.tri = c.liste.ChoixTri.ListIndex;
    courants.base = c.chemins.baseARetenir();
    courants.lancerConnexion = c.etats.fonctions.chkLancerConnexion.Value == 1;
    courants.statistiques = c.liste.AffStats.Value == 1;
    return texteReglages(courants, c.chemins.dossier);
}

}  // namespace

void arrete(const Contexte& c, bool ecritReglages) {
    fermeBase(c);
    if (ecritReglages && !fichiers::remplace(c.chemins.reglages, reglages(c)))
        c.dialogues.MsgBox("Les réglages n'ont pas pu être enregistrés (" + c.chemins.reglages + ").",
                           dialogues::kCritique);
    enregistreExtensions(c);
    fichiers::supprimeSelonMotif(c.chemins.dossierTmp, "*.*");
}

}  // namespace app
