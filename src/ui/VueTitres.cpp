#include "ui/VueTitres.h"

#include "ui/DelegueTitres.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace ui {

// The tree's part of the liaison: the node list is too large to be compared, its generation and count tell it changed.
class VueTitres::LienArbre final : public Lien {
  public:
    LienArbre(browse::VueArbre& etat, VueTitres& vue) : m_etat(etat), m_vue(vue) {}

    void lit() override {
        // The selected row: the current one also moves when the tree merely takes the focus.
        const QModelIndexList choisis = m_vue.selectionModel()->selectedIndexes();
        m_etat.SelectedItem = m_choisi = choisis.isEmpty() ? 0 : ModeleArbre::noeud(choisis.first());
    }

    void ecrit() override {
        if (m_generation != m_etat.Nodes.generation() || m_nombre != m_etat.Nodes.Count()) recommence();
        if (m_coches != m_etat.coches || m_cases != m_etat.Checkboxes) {
            m_coches = m_etat.coches;
            m_cases = m_etat.Checkboxes;
            m_vue.m_modele.coches();
        }
        if (m_textes != m_etat.Nodes.versionDesTextes()) {
            m_textes = m_etat.Nodes.versionDesTextes();
            m_vue.changeLesTextes();
        }
        if (m_choisi != m_etat.SelectedItem) {
            m_choisi = m_etat.SelectedItem;
            m_vue.montreNoeud(m_choisi);
        }
        if (const int aOuvrir = std::exchange(m_etat.aOuvrir, 0); aOuvrir != 0)
            m_vue.expand(m_vue.m_modele.indexDuNoeud(aOuvrir));
        if (m_vue.isEnabled() != m_etat.Enabled) m_vue.setEnabled(m_etat.Enabled);
    }

  private:
    // One node less is a removal, not another filling: the headings that were open stay so, and the view where it was.
    void recommence() {
        const browse::Arbre& noeuds = m_etat.Nodes;
        const bool retrait = noeuds.generation() == m_generation + 1 && noeuds.Count() == m_nombre - 1;
        m_generation = noeuds.generation();
        m_nombre = noeuds.Count();
        m_choisi = 0;
        const int hauteur = m_vue.verticalScrollBar()->value();
        const std::set<QString> ouverts = std::exchange(m_vue.m_ouverts, {});
        m_vue.m_modele.recommence();
        if (!retrait) return;
        for (const std::int32_t indice : noeuds.enfants(0)) {
            const QModelIndex index = m_vue.m_modele.indexDuNoeud(indice);
            if (ouverts.count(index.data().toString())) m_vue.expand(index);
        }
        m_vue.verticalScrollBar()->setValue(hauteur);
    }

    browse::VueArbre& m_etat;
    VueTitres& m_vue;
    int m_generation = 0;
    int m_nombre = 0;
    int m_textes = 0;
    int m_choisi = 0;
    bool m_cases = false;
    std::set<int> m_coches;
};

VueTitres::VueTitres(browse::VueArbre& etat, QWidget* parent) : QTreeView(parent), m_modele(etat) {
    setModel(&m_modele);
    setItemDelegate(new DelegueTitres(this));
    setUniformRowHeights(true);
    setHeaderHidden(true);
    setExpandsOnDoubleClick(false);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideRight);
    setIndentation(18);
    setMouseTracking(true);
    header()->setStretchLastSection(true);
    connect(this, &QTreeView::clicked, this, &VueTitres::clique);
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex& groupe) { m_ouverts.insert(groupe.data().toString()); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& groupe) { m_ouverts.erase(groupe.data().toString()); });
}

std::unique_ptr<Lien> VueTitres::lien() {
    return std::make_unique<LienArbre>(m_modele.etat(), *this);
}

void VueTitres::clique(const QModelIndex& index) {
    basculeGroupe(index);
    emit noeudChoisi(ModeleArbre::noeud(index));
}

void VueTitres::basculeGroupe(const QModelIndex& index) {
    if (m_modele.hasChildren(index)) setExpanded(index, !isExpanded(index));
}

// The headings' texts: those that are open are known by theirs.
void VueTitres::changeLesTextes() {
    m_modele.textes();
    m_ouverts.clear();
    for (int ligne = 0; ligne < m_modele.rowCount(); ++ligne) {
        const QModelIndex index = m_modele.index(ligne, 0);
        if (isExpanded(index)) m_ouverts.insert(index.data().toString());
    }
}

void VueTitres::montreNoeud(int indice) {
    const QModelIndex index = m_modele.indexDuNoeud(indice);
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    else
        clearSelection();
}

void VueTitres::keyPressEvent(QKeyEvent* evenement) {
    const QModelIndex avant = currentIndex();
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (valide && avant.isValid()) {
        clique(avant);
        return;
    }
    QTreeView::keyPressEvent(evenement);
    const QModelIndex apres = currentIndex();
    if (apres.isValid() && apres != avant) emit noeudChoisi(ModeleArbre::noeud(apres));
}

// The node whose check box is there. A tick is no click: it neither selects the node nor shows its sheet.
QModelIndex VueTitres::caseSous(const QMouseEvent& evenement) const {
    const QModelIndex index = indexAt(evenement.position().toPoint());
    if (evenement.button() != Qt::LeftButton || !(index.flags() & Qt::ItemIsUserCheckable)) return {};
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    const QRect place = style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
    return place.adjusted(-3, -3, 3, 3).contains(evenement.position().toPoint()) ? index : QModelIndex();
}

void VueTitres::mousePressEvent(QMouseEvent* evenement) {
    m_casePressee = caseSous(*evenement);
    if (!m_casePressee.isValid()) QTreeView::mousePressEvent(evenement);
}

void VueTitres::mouseDoubleClickEvent(QMouseEvent* evenement) {
    m_casePressee = caseSous(*evenement);
    if (!m_casePressee.isValid()) QTreeView::mouseDoubleClickEvent(evenement);
}

void VueTitres::mouseReleaseEvent(QMouseEvent* evenement) {
    if (const QModelIndex pressee = std::exchange(m_casePressee, QPersistentModelIndex()); pressee.isValid()) {
        const bool cochee = pressee.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
        if (caseSous(*evenement) == pressee)
            m_modele.setData(pressee, cochee ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
    }
    QTreeView::mouseReleaseEvent(evenement);
    if (evenement->button() != Qt::RightButton) return;
    const QModelIndex index = indexAt(evenement->position().toPoint());
    emit menuDemande(index.isValid() ? ModeleArbre::noeud(index) : 0, evenement->globalPosition().toPoint());
}

// The mouse asks for its menu when it is released; only the keyboard does it here.
void VueTitres::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    if (evenement->reason() == QContextMenuEvent::Mouse || !currentIndex().isValid()) return;
    scrollTo(currentIndex());
    emit menuDemande(ModeleArbre::noeud(currentIndex()),
                     viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

void VueTitres::paintEvent(QPaintEvent* evenement) {
    QTreeView::paintEvent(evenement);
    if (std::exchange(m_peinte, true)) return;
    emit peinte();
}

}  // namespace ui
