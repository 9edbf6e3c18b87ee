#include "app/RaccourcisClavier.h"

namespace app {

void RaccourcisClavier::QuittePanneau() {
    browse::EtatPanneaux& panneaux = m_montre.panneaux;
    const bool coche = panneaux.frameMultiSuppression.Visible;
    if (!coche && (panneaux.frameFiche.Visible || panneaux.framePresentation.Visible)) {
        m_montre.demandes.focus = "TreeView1";
        return;
    }
    if (!m_gestes.saisies.abandonnePage()) return;
    m_montre.demandes.focus = "TreeView1";
    panneaux.montreAucun();
    if (!m_montre.film.estUnFilm()) return m_gestes.afficheAccueil();
    panneaux.montre(panneaux.frameFiche);
    const bool generalites = m_montre.fiche.frameGeneralites[0].Visible;
    m_gestes.afficheVolet(generalites ? browse::kVoletGeneralites : browse::kVoletAutresInfos);
}

void RaccourcisClavier::SaisieManuelle() {
    Saisies& saisies = m_gestes.saisies;
    if (saisies.pageEnSuspens() && !m_montre.ajout.modeModifier()) {
        m_montre.demandes.focus = "Text3_0";
        return;
    }
    if (!saisies.pageMontree() && saisies.reprendAjout()) return;
    if (!saisies.abandonnePage()) return;
    m_gestes.volet.montreVoletAjout();
    m_gestes.modes.Command13_Click(1);
    saisies.retient();
}

// A correction that was begun goes on.
void RaccourcisClavier::Modifie() {
    if (m_gestes.saisies.pageEnSuspens() && m_montre.ajout.modeModifier()) {
        m_montre.demandes.focus = "Text3_0";
        return;
    }
    if (!m_montre.film.estUnFilm()) return;
    m_gestes.modifie();
    m_gestes.saisies.retient();
}

void RaccourcisClavier::ModifieFilmAffiche() {
    if (m_montre.panneaux.frameFiche.Visible) Modifie();
}

void RaccourcisClavier::SupprimeFilmAffiche() {
    if (m_montre.panneaux.frameFiche.Visible) m_gestes.supprime.cmdSupprimerTitre_Click();
}

void RaccourcisClavier::Valide() {
    if (m_gestes.saisies.pageMontree())
        m_gestes.ajoute();
    else if (m_montre.panneaux.frameFiche.Visible && m_montre.fiche.cmdValiderInfosPossessions.Visible)
        m_gestes.valide();
}

std::string texteTouches() {
    return "Touches d'Ambrelis\n"
           "\n"
           "F1 : ces touches\n"
           "Ctrl+F : rechercher\n"
           "Ctrl+N : saisir un film\n"
           "Ctrl+O : ouvrir ou créer une base\n"
           "Ctrl+Q : quitter\n"
           "F2 : modifier le film affiché\n"
           "Suppr : supprimer le film affiché\n"
           "Ctrl+Entrée : enregistrer ce qui est saisi (Entrée aussi, dans un champ d'une ligne)\n"
           "Échap : quitter le panneau, ou revenir à la liste\n"
           "\n"
           "Dans la liste :\n"
           "Entrée : montrer le film, ouvrir ou fermer la catégorie\n"
           "Espace : cocher le film (multi-suppression)\n"
           "Maj+F10 : menu du film ou de la catégorie\n"
           "\n"
           "Dans l'afficheur d'images :\n"
           "Page précédente, page suivante : film précédent, film suivant\n"
           "F1, Échap : fermer";
}

}  // namespace app
