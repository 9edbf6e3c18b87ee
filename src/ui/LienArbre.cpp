#include "ui/LienArbre.h"

#include <QScrollBar>
#include <utility>

namespace ui {

VueTitres::LienArbre::Contenu VueTitres::LienArbre::contenu() const {
    return {m_liste.triDeLArbre, m_liste.ChoixZone.Text, m_liste.critereRecherche};
}

VueTitres::LienArbre::Vue VueTitres::LienArbre::releve() const {
    Vue vue{m_remplie, m_vue.m_ouverts, m_vue.verticalScrollBar()->value(), {}};
    const QRect ligne = m_vue.visualRect(m_vue.m_modele.indexDuNoeud(m_choisi));
    if (!ligne.isEmpty() && m_vue.viewport()->rect().intersects(ligne)) vue.hauteurDuChoix = ligne.top();
    return vue;
}

void VueTitres::LienArbre::lit() {
    // The selected row: the current one also moves when the tree merely takes the focus.
    const QModelIndexList choisis = m_vue.selectionModel()->selectedIndexes();
    m_etat.SelectedItem = m_choisi = choisis.isEmpty() ? 0 : ModeleArbre::noeud(choisis.first());
    m_avant = releve();
    m_recommencee = false;
}

void VueTitres::LienArbre::ecrit() {
    if (m_generation != m_etat.Nodes.generation() || m_nombre != m_etat.Nodes.Count()) recommence();
    if (m_coches != m_etat.coches || m_cases != m_etat.Checkboxes) {
        m_coches = m_etat.coches;
        m_cases = m_etat.Checkboxes;
        m_vue.m_modele.coches();
    }
    if (m_textes != m_etat.Nodes.versionDesTextes()) {
        m_textes = m_etat.Nodes.versionDesTextes();
        m_vue.m_modele.textes();
    }
    if (m_choisi != m_etat.SelectedItem) montreChoix();
    if (const int aOuvrir = std::exchange(m_etat.aOuvrir, 0); aOuvrir != 0)
        m_vue.expand(m_vue.m_modele.indexDuNoeud(aOuvrir));
    if (m_vue.isEnabled() != m_etat.Enabled) m_vue.setEnabled(m_etat.Enabled);
}

void VueTitres::LienArbre::recommence() {
    m_generation = m_etat.Nodes.generation();
    m_nombre = m_etat.Nodes.Count();
    m_choisi = 0;
    m_recommencee = true;
    m_remplie = contenu();
    m_vue.m_ouverts.clear();
    m_vue.m_modele.recommence();
    // A flat list has no arrows to leave room for.
    m_vue.setRootIsDecorated(m_etat.Nodes.Count() > 0 && m_etat.Nodes.estGroupe(m_etat.Nodes.enfants(0).front()));
    if (!memeListe()) {
        m_vue.scrollToTop();
    } else {
        for (const std::int32_t indice : m_etat.Nodes.enfants(0)) {
            const QModelIndex index = m_vue.m_modele.indexDuNoeud(indice);
            if (m_avant.ouverts.count(libelle(index))) m_vue.expand(index);
        }
        m_vue.verticalScrollBar()->setValue(m_avant.defilement);
    }
    // Without a current row nothing would tell where the keys stand.
    if (m_vue.hasFocus())
        m_vue.selectionModel()->setCurrentIndex(m_vue.m_modele.index(0, 0), QItemSelectionModel::NoUpdate);
}

void VueTitres::LienArbre::montreChoix() {
    m_choisi = m_etat.SelectedItem;
    m_vue.montreNoeud(m_choisi);
    if (!m_recommencee || !memeListe() || !m_avant.hauteurDuChoix || m_choisi == 0) return;
    const int ecart = m_vue.visualRect(m_vue.m_modele.indexDuNoeud(m_choisi)).top() - *m_avant.hauteurDuChoix;
    m_vue.verticalScrollBar()->setValue(m_vue.verticalScrollBar()->value() + ecart);
}

}  // namespace ui
