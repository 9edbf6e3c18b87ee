#include "app/Arret.h"

#include "app/EnregistreExtensions.h"
#include "app/Reglages.h"
#include "platform/fichiers/Fichiers.h"

namespace app {

void Arret::execute(bool ecritReglages) {
    fermeBase();
    if (ecritReglages) enregistreReglages();
    const auto nombre = static_cast<std::size_t>(m_etats.fonctions.Combo6[0].ListCount());
    enregistreExtensions(m_extensions, nombre, m_chemins, m_dialogues);
    fichiers::supprimeSelonMotif(m_chemins.dossierTmp, "*.*");
}

void Arret::fermeBase() {
    try {
        m_base.films.Close();
        m_base.base.Close();
    } catch (const dao::ErreurDao& erreur) {
        m_dialogues.MsgBox("Erreur " + std::to_string(erreur.numero) + " : " + erreur.description);
    }
}

void Arret::enregistreReglages() {
    if (!fichiers::remplace(m_chemins.reglages, reglages()))
        m_dialogues.MsgBox("Les réglages n'ont pas pu être enregistrés (" + m_chemins.reglages + ").",
                           dialogues::kCritique);
}

std::string Arret::reglages() const {
    Reglages courants;
    courants.stockage = m_etats.stockage.dansLaBase() ? 0 : 1;
    courants.dossierImages = m_etats.stockage.Text4.Text;
    courants.largeur = m_etats.frmPrincipal.Width;
    courants.hauteur = m_etats.frmPrincipal.Height;
    courants.tri = m_etats.liste.ChoixTri.ListIndex;
    courants.base = m_chemins.baseARetenir();
    courants.lancerConnexion = m_etats.fonctions.chkLancerConnexion.Value == 1;
    courants.statistiques = m_etats.liste.AffStats.Value == 1;
    return texteReglages(courants, m_chemins.dossier);
}

}  // namespace app
