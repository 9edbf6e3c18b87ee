#include "app/RaccourcisClavier.h"

namespace app {

void RaccourcisClavier::QuittePanneau() {
    browse::EtatPanneaux& panneaux = m_montre.panneaux;
    if (panneaux.frameFiche.Visible || panneaux.framePresentation.Visible || !laisseLaSaisie()) return;
    m_montre.demandes.focus = "TreeView1";
    if (!m_montre.film.estUnFilm()) return m_gestes.afficheAccueil();
    panneaux.montre(panneaux.frameFiche);
    const bool generalites = m_montre.fiche.frameGeneralites[0].Visible;
    m_gestes.afficheVolet(generalites ? browse::kVoletGeneralites : browse::kVoletAutresInfos);
}

void RaccourcisClavier::SaisieManuelle() {
    const edit::EtatAjout& ajout = m_montre.ajout;
    if (ajout.Frame13.Visible && !ajout.modeModifier() && saisieEnSuspens()) {
        m_gestes.volet.montreVoletAjout();
        m_montre.demandes.focus = "Text3_0";
        return;
    }
    if (!laisseLaSaisie()) return;
    m_gestes.volet.montreVoletAjout();
    m_gestes.modes.Command13_Click(1);
    retientSaisie();
}

void RaccourcisClavier::ModifieFilmAffiche() {
    if (!m_montre.panneaux.frameFiche.Visible) return;
    m_gestes.modifie();
    retientSaisie();
}

void RaccourcisClavier::SupprimeFilmAffiche() {
    if (m_montre.panneaux.frameFiche.Visible) m_gestes.supprime.cmdSupprimerTitre_Click();
}

std::vector<std::string> RaccourcisClavier::textesSaisis() const {
    const edit::EtatAjout& ajout = m_montre.ajout;
    std::vector<std::string> textes{ajout.Combo2.Text, ajout.Combo3.Text, ajout.Combo4.Text, ajout.txtResume.Text};
    for (const ecran::ZoneTexte& zone : ajout.Text3)
        textes.push_back(zone.Text);
    return textes;
}

bool RaccourcisClavier::saisieMontree() const {
    return m_montre.panneaux.frameListeFonctions.Visible && m_montre.fonctions.frameDivers.Visible &&
           m_montre.ajout.Frame13.Visible;
}

bool RaccourcisClavier::laisseLaSaisie() {
    if (!saisieMontree() || !saisieEnSuspens()) return true;
    return m_dialogues.MsgBox("La fiche n'est pas enregistrée.\nVoulez-vous abandonner votre saisie ?",
                              dialogues::kQuestion) == dialogues::kOui;
}

}  // namespace app
