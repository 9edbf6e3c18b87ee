#include "ui/VueTitres.h"

#include "ui/DelegueTitres.h"
#include "ui/Lecteur.h"
#include "ui/LienArbre.h"
#include "util/Ascii.h"
#include "util/Nombres.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>
#include <string_view>

namespace ui {

namespace {

constexpr qint64 kEntreDeuxLettres = 1500;  // milliseconds after which typing begins anew
constexpr int kLignesDAbord = 1000;         // opened with a keystroke in the filter; more than any screen shows
constexpr int kReposDeLaFrappe = 150;       // milliseconds after which the others are

// A title as it is typed without minding accents and case; ligatures as their letters.
QString pourLaFrappe(const QString& texte) {
    QString resultat;
    for (const QChar lettre : texte.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (lettre.isMark()) continue;
        if (lettre == QChar(0x0153))
            resultat += QLatin1String("oe");
        else if (lettre == QChar(0x00e6))
            resultat += QLatin1String("ae");
        else if (lettre == QChar(0x2019))
            resultat += QLatin1Char('\'');
        else
            resultat += lettre;
    }
    return resultat;
}

// Of a million titles nearly all begin with another letter. Other than plain ones are folded first.
bool commenceAutrement(std::string_view titre, const QString& frappe) {
    const auto lettre = std::ranges::find_if_not(titre, [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
    const bool simples =
        lettre != titre.end() && static_cast<unsigned char>(*lettre) < 0x80 && frappe.front() < QChar(0x80);
    return simples && util::enMinuscule(*lettre) != frappe.front().toLatin1();
}

bool commencePar(std::string_view titre, const QString& frappe) {
    if (commenceAutrement(titre, frappe)) return false;
    // A character takes four bytes at most, and few letters fold into more than one.
    const auto assez = std::min(titre.size(), 4 * static_cast<std::size_t>(frappe.size() + 4));
    return pourLaFrappe(QString::fromUtf8(titre.data(), static_cast<qsizetype>(assez)).trimmed()).startsWith(frappe);
}

// The next node shown that begins so after `depuis`, in turn; 0 for none.
int cherche(const ModeleArbre& modele, const browse::Arbre& arbre, const QString& frappe, int depuis, bool groupes) {
    for (int pas = 0; pas < arbre.Count(); ++pas) {
        const int indice = (std::max(depuis, 1) - 1 + pas) % arbre.Count() + 1;
        if (arbre.estGroupe(indice) == groupes && modele.estVu(indice) && commencePar(arbre.Text(indice), frappe))
            return indice;
    }
    return 0;
}

bool estUneLettre(const QKeyEvent& evenement) {
    return !(evenement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
           !evenement.text().isEmpty() && evenement.text().front().isPrint();
}

}  // namespace

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
    setIndentation(kRetraitDArbre);
    setMouseTracking(true);
    header()->setStretchLastSection(true);
    connect(this, &QTreeView::clicked, this, &VueTitres::clique);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& groupe) {
        if (!m_modele.estFiltre()) m_ouverts.emplace(libelle(groupe));
        ditLeGroupe(groupe);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& groupe) {
        if (const auto ferme = m_ouverts.find(libelle(groupe)); ferme != m_ouverts.end()) m_ouverts.erase(ferme);
        ditLeGroupe(groupe);
    });
    m_resteAOuvrir.setSingleShot(true);
    connect(&m_resteAOuvrir, &QTimer::timeout, this, [this] {
        if (!m_modele.estFiltre()) return;
        const int place = verticalScrollBar()->value();
        expandAll();
        verticalScrollBar()->setValue(place);
    });
}

std::unique_ptr<Lien> VueTitres::lien(const browse::EtatListe& liste) {
    return std::make_unique<LienArbre>(liste, *this);
}

std::string_view VueTitres::libelle(const QModelIndex& groupe) const {
    const browse::Arbre& arbre = m_modele.etat().Nodes;
    const int noeud = groupe.isValid() ? ModeleArbre::noeud(groupe) : 0;
    return noeud != 0 && arbre.estGroupe(noeud) ? arbre.texteDuGroupe(noeud) : std::string_view();
}

void VueTitres::clique(const QModelIndex& index) {
    basculeGroupe(index);
    emit noeudChoisi(ModeleArbre::noeud(index));
}

void VueTitres::basculeGroupe(const QModelIndex& index) {
    if (m_modele.hasChildren(index)) setExpanded(index, !isExpanded(index));
}

// To readers: Qt tells them nothing of a heading that opens or closes under the keys.
void VueTitres::ditLeGroupe(const QModelIndex& groupe) {
    if (!hasFocus() || groupe != currentIndex()) return;
    const std::string films = util::phraseCompte(m_modele.rowCount(groupe), "# titre", "# titres");
    annonce(window(), isExpanded(groupe) ? tr("Ouvert, %1").arg(QString::fromStdString(films)) : tr("Fermé"));
}

// Of the row that was chosen; one that is out of sight stays so.
int VueTitres::choisi() const {
    const QModelIndexList choisis = selectionModel()->selectedIndexes();
    if (!choisis.isEmpty()) return ModeleArbre::noeud(choisis.first());
    const int note = m_modele.etat().SelectedItem;
    return m_modele.estVu(note) ? 0 : note;
}

void VueTitres::filtreANouveau() {
    Noeuds noeuds = m_filtre ? m_filtre() : std::nullopt;
    const bool filtrait = m_modele.estFiltre(), filtre = noeuds.has_value();
    if (!filtre && !filtrait) return;
    const int leChoisi = choisi();
    if (!filtrait) m_avantFiltre = {m_ouverts, verticalScrollBar()->value(), leChoisi};
    m_ouverts.clear();
    m_modele.recommence(std::move(noeuds));
    filtre ? ouvreTout() : ouvre(m_avantFiltre.ouverts);
    executeDelayedItemsLayout();
    updateGeometries();
    setAutoScroll(false);
    if (m_modele.estVu(leChoisi))
        selectionModel()->setCurrentIndex(m_modele.indexDuNoeud(leChoisi), QItemSelectionModel::ClearAndSelect);
    else
        entreParLaPremiere();
    setAutoScroll(true);
    verticalScrollBar()->setValue(filtre ? 0 : m_avantFiltre.defilement);
    if (!filtre && leChoisi != 0 && leChoisi != m_avantFiltre.choisi)
        scrollTo(m_modele.indexDuNoeud(leChoisi), PositionAtCenter);
}

bool VueTitres::choisitPremierFilm() {
    const int premier = m_modele.premierFilm();
    if (premier == 0) return false;
    montreNoeud(premier);
    emit noeudChoisi(premier);
    return true;
}

void VueTitres::ouvre(const Libelles& libelles) {
    if (libelles.empty()) return;
    for (int ligne = 0; ligne < m_modele.rowCount(); ++ligne) {
        const QModelIndex index = m_modele.index(ligne, 0);
        if (libelles.contains(libelle(index))) expand(index);
    }
}

void VueTitres::ouvreTout() {
    m_resteAOuvrir.stop();
    int lignes = 0, rang = 0;
    for (; rang < m_modele.rowCount() && lignes < kLignesDAbord; ++rang) {
        const QModelIndex groupe = m_modele.index(rang, 0);
        if (!m_modele.hasChildren(groupe)) return;  // a flat list
        lignes += 1 + m_modele.rowCount(groupe);
        expand(groupe);
    }
    if (rang < m_modele.rowCount()) m_resteAOuvrir.start(kReposDeLaFrappe);
}

// Without a current row nothing would tell where the keys stand.
void VueTitres::entreParLaPremiere() {
    if (hasFocus()) selectionModel()->setCurrentIndex(m_modele.index(0, 0), QItemSelectionModel::NoUpdate);
}

// The headings' texts: those that are open are known by theirs.
void VueTitres::montreNoeud(int indice) {
    const QModelIndex index = m_modele.indexDuNoeud(indice);
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    else
        clearSelection();
}

bool VueTitres::frappeEnCours() const {
    return !m_frappe.isEmpty() && m_depuisLaFrappe.isValid() && m_depuisLaFrappe.elapsed() < kEntreDeuxLettres;
}

// The same letter again goes from one title to the next.
void VueTitres::keyboardSearch(const QString& texte) {
    if (!frappeEnCours()) m_frappe.clear();
    if (m_frappe.isEmpty() && texte.trimmed().isEmpty()) return;
    m_frappe += pourLaFrappe(texte);
    m_depuisLaFrappe.start();
    const bool memeLettre = m_frappe.count(m_frappe.left(1)) == m_frappe.size();
    const QString frappe = memeLettre ? m_frappe.left(1) : m_frappe;
    const browse::Arbre& arbre = m_modele.etat().Nodes;
    const bool seDeplace = frappe.size() == 1 && !selectedIndexes().isEmpty();
    const int depuis = (currentIndex().isValid() ? ModeleArbre::noeud(currentIndex()) : 1) + (seDeplace ? 1 : 0);
    int trouve = cherche(m_modele, arbre, frappe, depuis, false);
    if (trouve == 0) trouve = cherche(m_modele, arbre, frappe, depuis, true);
    if (trouve != 0) montreNoeud(trouve);
}

// What is typed ends where the keys go elsewhere: a blank that comes after is the tree's own again, and ticks.
void VueTitres::focusOutEvent(QFocusEvent* evenement) {
    m_frappe.clear();
    QTreeView::focusOutEvent(evenement);
}

// A row that no gesture chose yet is where the keys begin, not where they leave from.
bool VueTitres::choisitCourant(const QKeyEvent& evenement) const {
    const bool pas = evenement.key() == Qt::Key_Down || evenement.key() == Qt::Key_Up;
    return pas && currentIndex().isValid() && selectedIndexes().isEmpty();
}

void VueTitres::keyPressEvent(QKeyEvent* evenement) {
    const QModelIndex avant = currentIndex();
    const bool choisi = selectionModel()->isSelected(avant);
    const QVariant coche = avant.data(Qt::CheckStateRole);
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (valide && avant.isValid()) return clique(avant);
    if (evenement->text() == QLatin1String("/") && !frappeEnCours()) {
        emit filtreVoulu();
        return;
    }
    if (frappeEnCours() && estUneLettre(*evenement))  // a blank, a sign: no longer the tree's own
        keyboardSearch(evenement->text());
    else if (!choisitCourant(*evenement))
        QTreeView::keyPressEvent(evenement);
    const QModelIndex apres = currentIndex();
    if (apres == avant && apres.data(Qt::CheckStateRole) != coche) annonceCoche(this);
    static constexpr int kDeplacements[] = {Qt::Key_Down, Qt::Key_Up,     Qt::Key_Home,
                                            Qt::Key_End,  Qt::Key_PageUp, Qt::Key_PageDown};
    const bool deplace = std::ranges::count(kDeplacements, evenement->key()) > 0;
    if (deplace) m_frappe.clear();
    const bool nouveau = apres != avant || (!choisi && (deplace || selectionModel()->isSelected(apres)));
    if (!apres.isValid() || !nouveau) return;
    selectionModel()->select(apres, QItemSelectionModel::ClearAndSelect);
    emit noeudChoisi(ModeleArbre::noeud(apres));
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

// What is pressed; false where no node is, or its check box: the selection stays.
bool VueTitres::prends(const QMouseEvent& evenement) {
    m_casePressee = caseSous(evenement);
    m_pressee = m_casePressee.isValid() ? QModelIndex() : indexAt(evenement.position().toPoint());
    return m_pressee.isValid();
}

void VueTitres::mousePressEvent(QMouseEvent* evenement) {
    if (prends(*evenement)) QTreeView::mousePressEvent(evenement);
}

void VueTitres::mouseDoubleClickEvent(QMouseEvent* evenement) {
    if (prends(*evenement)) QTreeView::mouseDoubleClickEvent(evenement);
}

// Drawing the pressed mouse over other rows chooses none of them.
void VueTitres::mouseMoveEvent(QMouseEvent* evenement) {
    if (!evenement->buttons()) QTreeView::mouseMoveEvent(evenement);
}

void VueTitres::mouseReleaseEvent(QMouseEvent* evenement) {
    const QModelIndex sous = indexAt(evenement->position().toPoint());
    if (const QModelIndex pressee = std::exchange(m_casePressee, QPersistentModelIndex()); pressee.isValid()) {
        const bool cochee = pressee.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
        if (caseSous(*evenement) == pressee)
            m_modele.setData(pressee, cochee ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
    }
    const QModelIndex pressee = std::exchange(m_pressee, QPersistentModelIndex());
    if (pressee.isValid()) QTreeView::mouseReleaseEvent(evenement);
    if (evenement->button() == Qt::RightButton)
        emit menuDemande(sous.isValid() ? ModeleArbre::noeud(sous) : 0, evenement->globalPosition().toPoint());
    else if (pressee.isValid() && pressee != sous)  // it was chosen by the press
        emit noeudChoisi(ModeleArbre::noeud(pressee));
}

// The mouse asks for its menu when it is released; only the keyboard does it here.
void VueTitres::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    if (evenement->reason() == QContextMenuEvent::Mouse || !currentIndex().isValid()) return;
    scrollTo(currentIndex());
    emit menuDemande(ModeleArbre::noeud(currentIndex()),
                     viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

// A row that was seen stays so where something else takes room below the list.
void VueTitres::resizeEvent(QResizeEvent* evenement) {
    const QRect courant = visualRect(currentIndex());
    const bool vu = courant.isValid() && QRect(QPoint(), evenement->oldSize()).contains(courant.center());
    QTreeView::resizeEvent(evenement);
    if (vu) scrollTo(currentIndex());
}

void VueTitres::paintEvent(QPaintEvent* evenement) {
    QTreeView::paintEvent(evenement);
    if (std::exchange(m_peinte, true)) return;
    emit peinte();
}

}  // namespace ui
