#include "ui/LienArbre.h"

#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace ui {

VueTitres::LienArbre::Contenu VueTitres::LienArbre::contenu() const {
    return {m_liste.triDeLArbre, m_liste.ChoixZone.Text, m_liste.critereRecherche};
}

VueTitres::LienArbre::Vue VueTitres::LienArbre::releve() const {
    Vue vue{m_remplie, m_vue.m_ouverts, m_vue.verticalScrollBar()->value(), {}};
    const QModelIndex choix = m_vue.m_modele.indexDuNoeud(m_choisi);
    const QRect ligne = m_vue.visualRect(choix);
    if (!ligne.isEmpty() && m_vue.viewport()->rect().intersects(ligne)) vue.hauteurDuChoix = ligne.top();
    vue.groupeDuChoix = m_vue.libelle(choix.parent());
    vue.rangDuChoix = choix.row();
    return vue;
}

void VueTitres::LienArbre::lit() {
    m_etat.SelectedItem = m_choisi = m_vue.choisi();
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
    const bool retire = m_nombre == m_etat.Nodes.Count() + 1 && m_choisi != 0 && m_etat.SelectedItem == 0;
    m_generation = m_etat.Nodes.generation();
    m_nombre = m_etat.Nodes.Count();
    m_choisi = 0;
    m_recommencee = true;
    m_remplie = contenu();
    m_vue.m_ouverts.clear();
    const bool filtree = m_vue.m_modele.estFiltre();
    m_vue.m_modele.recommence(m_vue.m_filtre ? m_vue.m_filtre() : std::nullopt);
    // A flat list has no arrows to leave room for, and stands off the edge.
    const bool plate = m_etat.Nodes.Count() == 0 || !m_etat.Nodes.estGroupe(m_etat.Nodes.enfants(0).front());
    m_vue.setIndentation(plate ? kRetraitDeListe : kRetraitDArbre);
    if (m_vue.m_modele.estFiltre()) {
        if (!memeListe())
            m_vue.m_avantFiltre = {};
        else if (!filtree)
            m_vue.m_avantFiltre = {m_avant.ouverts, m_avant.defilement, 0};
        m_vue.m_avantFiltre.choisi = -1;  // the nodes are others
        m_vue.ouvreTout();
        m_vue.verticalScrollBar()->setValue(filtree && memeListe() ? m_avant.defilement : 0);
    } else if (memeListe()) {
        m_vue.ouvre(filtree ? m_vue.m_avantFiltre.ouverts : m_avant.ouverts);
        m_vue.verticalScrollBar()->setValue(filtree ? m_vue.m_avantFiltre.defilement : m_avant.defilement);
    } else {
        m_vue.scrollToTop();
    }
    m_vue.entreParLaPremiere();
    if (retire && memeListe()) passeAuVoisin();
}

// The film that was chosen left the list: the keys go on from the one that took its place, which is not chosen.
void VueTitres::LienArbre::passeAuVoisin() {
    const ModeleArbre& modele = m_vue.m_modele;
    QModelIndex groupe;
    if (!m_avant.groupeDuChoix.empty()) {
        for (int ligne = 0; !groupe.isValid() && ligne < modele.rowCount(); ++ligne)
            if (m_vue.libelle(modele.index(ligne, 0)) == m_avant.groupeDuChoix) groupe = modele.index(ligne, 0);
        if (!groupe.isValid()) return;
    }
    const int films = modele.rowCount(groupe);
    const QModelIndex voisin = films == 0 ? groupe : modele.index(std::min(m_avant.rangDuChoix, films - 1), 0, groupe);
    m_vue.selectionModel()->setCurrentIndex(voisin, QItemSelectionModel::NoUpdate);
}

void VueTitres::LienArbre::montreChoix() {
    m_choisi = m_etat.SelectedItem;
    m_vue.montreNoeud(m_choisi);
    if (!m_recommencee || !memeListe() || !m_avant.hauteurDuChoix || !m_vue.m_modele.estVu(m_choisi)) return;
    const int ecart = m_vue.visualRect(m_vue.m_modele.indexDuNoeud(m_choisi)).top() - *m_avant.hauteurDuChoix;
    m_vue.verticalScrollBar()->setValue(m_vue.verticalScrollBar()->value() + ecart);
}

}  // namespace ui
