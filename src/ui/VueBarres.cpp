#include "ui/VueBarres.h"

#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/Traits.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

namespace ui {

namespace {

class DelegueDeBarre final : public QStyledItemDelegate {
  public:
    explicit DelegueDeBarre(VueBarres* vue) : QStyledItemDelegate(vue), m_vue(*vue) {}

    void paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const ensemble::Diagramme* diagramme = m_vue.diagramme();
        if (!diagramme) return;
        const QPalette& palette = option.palette;
        const QRectF ligne(option.rect);
        if (option.state.testFlag(QStyle::State_MouseOver))
            peintSurface(*peintre, ligne.adjusted(0, 1, -1, -1), voile(palette), {});
        peintre->setFont(option.font);
        const QColor texte = palette.color(QPalette::Text), base = palette.color(QPalette::Base);
        peintBarre(*peintre, ligne.adjusted(kPetit, 0, -kPetit, 0), *diagramme,
                   diagramme->barres[static_cast<std::size_t>(index.row())], m_vue.mesures(),
                   {texte, lisible(texteDiscret(palette), {base, voile(palette)}), accent(palette)});
        if (option.state.testFlag(QStyle::State_HasFocus))
            peintContourDeFocus(*peintre, ligne.adjusted(0, 1, -1, -1), accentLisible(palette));
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {100, option.fontMetrics.height() + kPetit};
    }

  private:
    const VueBarres& m_vue;
};

}  // namespace

void ModeleBarres::montre(const ensemble::Diagramme* diagramme) {
    beginResetModel();
    m_diagramme = diagramme;
    endResetModel();
}

int ModeleBarres::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !m_diagramme ? 0 : static_cast<int>(m_diagramme->barres.size());
}

QVariant ModeleBarres::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const QString texte = texteDeLaBarre(*m_diagramme, m_diagramme->barres.at(static_cast<std::size_t>(index.row())));
    return role == Qt::ToolTipRole ? enInfobulle(texte) : texte;
}

VueBarres::VueBarres(const char* nom) {
    nomme(this, nom, tr("Diagramme"));
    setModel(&m_modele);
    setItemDelegate(new DelegueDeBarre(this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { emit barreChoisie(index.row()); });
}

// Counted again, a diagram keeps its place.
void VueBarres::montre(const ensemble::Diagramme* diagramme) {
    if (this->diagramme()) m_quittee = {this->diagramme()->titre, currentIndex().row(), verticalScrollBar()->value()};
    m_modele.montre(diagramme);
    mesure();
    const int derniere = m_modele.rowCount() - 1;
    if (derniere < 0) return;
    const Place place = m_quittee.titre == diagramme->titre ? m_quittee : Place{};
    setCurrentIndex(m_modele.index(std::clamp(place.rang, 0, derniere)));
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(place.hauteur);
}

void VueBarres::mesure() {
    if (diagramme()) m_mesures = MesuresDeBarres::de(*diagramme(), font(), viewport()->width() - 2 * kPetit);
}

void VueBarres::keyPressEvent(QKeyEvent* evenement) {
    const bool choisit =
        evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter || evenement->key() == Qt::Key_Space;
    if (!choisit || !currentIndex().isValid()) return QListView::keyPressEvent(evenement);
    emit barreChoisie(currentIndex().row());
}

void VueBarres::resizeEvent(QResizeEvent* evenement) {
    QListView::resizeEvent(evenement);
    mesure();
}

}  // namespace ui
