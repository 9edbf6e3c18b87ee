#include "ui/TablePrets.h"

#include "ui/Composition.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>
#include <set>

namespace ui {

namespace {

constexpr int kLignesAuMoins = 3, kLignesVoulues = 8;
constexpr int kLignesMesurees = 300;   // for the width of a column, beside those in sight
constexpr double kPartDuFilm = 0.28;   // of the width, at least
constexpr int kLargeurDesJours = 112;  // "9999 jours", bold, behind its mark
constexpr int kLargeurAuMoins = 48;    // of any other column

using Cle = std::pair<std::string, std::string>;

// Rows as high as those of the title tree, columns apart.
class DelegueDePret final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(kMoyen, kPetit);
    }
};

}  // namespace

TablePrets::TablePrets(ModelePrets::Sorte sorte, const char* nom, const QString& titre) : m_modele(sorte) {
    nomme(this, nom, titre);
    setModel(&m_modele);
    setItemDelegate(new DelegueDePret(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setIconSize({14, 14});
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setTabKeyNavigation(false);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    composeEntete();
    connect(&m_modele, &QAbstractItemModel::modelAboutToBeReset, this, &TablePrets::retiensLeChoix);
    connect(&m_modele, &QAbstractItemModel::modelReset, this, &TablePrets::remetsLeChoix);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &TablePrets::choixChange);
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { emit ficheDemandee(m_modele.pret(index.row()).film); });
}

void TablePrets::composeEntete() {
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(kLignesMesurees);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(m_modele.colonneTriee(), Qt::AscendingOrder);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, [this](int colonne, Qt::SortOrder ordre) {
        if (m_modele.triable(colonne)) return m_modele.sort(colonne, ordre);
        const QSignalBlocker muet(header());
        header()->setSortIndicator(m_modele.colonneTriee(), m_modele.ordre());
    });
    connect(header(), &QHeaderView::sectionResized, this, [this] { m_largeursChoisies |= !m_metLesLargeurs; });
    for (int colonne = 0; colonne < m_modele.columnCount(); ++colonne) {
        if (!m_modele.triable(colonne)) continue;
        const QString titre = m_modele.headerData(colonne, Qt::Horizontal, Qt::DisplayRole).toString();
        auto* action = new QAction(tr("Ranger par « %1 »").arg(titre), this);
        connect(action, &QAction::triggered, this, [this, colonne] {
            const bool deja = m_modele.colonneTriee() == colonne && m_modele.ordre() == Qt::AscendingOrder;
            header()->setSortIndicator(colonne, deja ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
        addAction(action);
    }
}

std::vector<ensemble::Pret> TablePrets::choisis() const {
    std::vector<ensemble::Pret> prets;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        prets.push_back(m_modele.pret(index.row()));
    return prets;
}

void TablePrets::retiensLeChoix() {
    m_choisis.clear();
    for (const QModelIndex& index : selectionModel()->selectedRows())
        m_choisis.push_back(m_modele.pret(index.row()).film);
    m_courante = currentIndex().row();
}

void TablePrets::remetsLeChoix() {
    std::set<Cle> choisis;
    for (const db::CleFilm& film : m_choisis)
        choisis.emplace(film.titre, film.realisateur);
    QItemSelection choix;
    for (int ligne = 0; ligne < m_modele.rowCount() && !choisis.empty(); ++ligne) {
        const db::CleFilm& film = m_modele.pret(ligne).film;
        if (!choisis.contains({film.titre, film.realisateur})) continue;
        choix.select(m_modele.index(ligne, 0), m_modele.index(ligne, m_modele.columnCount() - 1));
        if (choix.size() == 1) m_courante = ligne;
    }
    selectionModel()->select(choix, QItemSelectionModel::ClearAndSelect);
    const int courante = std::min(m_courante, m_modele.rowCount() - 1);
    if (courante >= 0) selectionModel()->setCurrentIndex(m_modele.index(courante, 0), QItemSelectionModel::NoUpdate);
    m_metLesLargeurs = true;
    for (int colonne = 1; colonne < m_modele.columnCount(); ++colonne)
        setColumnHidden(colonne, m_modele.colonneVide(colonne));
    m_metLesLargeurs = false;
    mesureLesColonnes();
    metLesLargeurs();
    emit choixChange();
}

// Once for what stands in them: a window that is made larger asks again and again.
void TablePrets::mesureLesColonnes() {
    m_largeurs.clear();
    for (int colonne = 1; colonne < m_modele.columnCount(); ++colonne)
        m_largeurs.push_back(
            isColumnHidden(colonne) ? 0 : std::max(sizeHintForColumn(colonne), header()->sectionSizeHint(colonne)));
}

// As wide as what stands in them, the widest giving way; the films have the rest, and enough of it.
void TablePrets::metLesLargeurs() {
    if (m_largeursChoisies || m_modele.rowCount() == 0 || m_largeurs.empty()) return;
    m_metLesLargeurs = true;
    const int place = viewport()->width(), film = static_cast<int>(kPartDuFilm * place);
    const int jours = m_modele.colonneDesJours();  // a number that is cut says nothing
    const auto largeurDe = [&](int colonne, int auPlus) {
        return std::min(m_largeurs[static_cast<std::size_t>(colonne) - 1],
                        colonne == jours ? std::max(auPlus, kLargeurDesJours) : auPlus);
    };
    const auto ensemble = [&](int auPlus) {
        int somme = 0;
        for (int colonne = 1; colonne < m_modele.columnCount(); ++colonne)
            somme += largeurDe(colonne, auPlus);
        return somme;
    };
    int auPlus = *std::max_element(m_largeurs.begin(), m_largeurs.end());
    while (auPlus > kLargeurAuMoins && film + ensemble(auPlus) > place)
        --auPlus;
    for (int colonne = 1; colonne < m_modele.columnCount(); ++colonne)
        if (!isColumnHidden(colonne)) setColumnWidth(colonne, largeurDe(colonne, auPlus));
    setColumnWidth(0, std::max(film, place - ensemble(auPlus)));
    m_metLesLargeurs = false;
}

void TablePrets::changeEvent(QEvent* evenement) {
    QTreeView::changeEvent(evenement);
    if (evenement->type() != QEvent::FontChange && evenement->type() != QEvent::StyleChange) return;
    mesureLesColonnes();
    metLesLargeurs();
}

void TablePrets::resizeEvent(QResizeEvent* evenement) {
    QTreeView::resizeEvent(evenement);
    metLesLargeurs();
}

void TablePrets::keyPressEvent(QKeyEvent* evenement) {
    const bool entree = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!entree || !currentIndex().isValid()) return QTreeView::keyPressEvent(evenement);
    emit ficheDemandee(m_modele.pret(currentIndex().row()).film);
}

int TablePrets::hauteur(int lignes) const {
    const int ligne = fontMetrics().height() + kPetit + 2;
    return header()->sizeHint().height() + lignes * ligne + 2 * frameWidth();
}

QSize TablePrets::sizeHint() const {
    return {QTreeView::sizeHint().width(), hauteur(std::clamp(m_modele.rowCount(), kLignesAuMoins, kLignesVoulues))};
}

QSize TablePrets::minimumSizeHint() const {
    return {QTreeView::minimumSizeHint().width(), hauteur(std::min(m_modele.rowCount(), kLignesAuMoins))};
}

}  // namespace ui
