#include "app/ChoixFonction.h"

namespace app {

void ChoixFonction::ChoixFonction1_Divers() {
    montre(m_fonctions.frameDivers);
    m_modesAjout.Command13_Click(0);
}

void ChoixFonction::ChoixFonction2_Outils() {
    montre(m_fonctions.frameOutils);
    metEnGras(0);
}

void ChoixFonction::ChoixFonction3_Config() {
    montre(m_fonctions.frameConfig);
    metEnGras(1);
    m_logiciels.montre();
}

void ChoixFonction::cmdConfig_Click(int indice) {
    if (indice == 0)
        ChoixFonction2_Outils();
    else
        ChoixFonction3_Config();
}

void ChoixFonction::montre(const ecran::Cadre& panneau) {
    m_afficheAccueil();
    m_panneaux.montre(m_panneaux.frameListeFonctions);
    for (ecran::Cadre* cadre : {&m_fonctions.frameDivers, &m_fonctions.frameOutils, &m_fonctions.frameConfig})
        cadre->Visible = cadre == &panneau;
}

void ChoixFonction::metEnGras(std::size_t bouton) {
    for (std::size_t i = 0; i < m_fonctions.cmdConfig.size(); ++i)
        m_fonctions.cmdConfig[i].FontBold = i == bouton;
}

}  // namespace app
