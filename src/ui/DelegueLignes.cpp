#include "ui/DelegueLignes.h"

#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/Traits.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QTreeView>

namespace ui {

QString texteDeLigne(std::string_view texte) {
    constexpr std::size_t kLu = 2400;  // bytes, of at most so many characters as below
    constexpr qsizetype kAssez = 500;
    const std::string_view debut = texte.substr(0, kLu);
    return QString::fromUtf8(debut.data(), static_cast<qsizetype>(debut.size())).left(kAssez);
}

void DelegueLignes::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    option->text = option->text.replace(QChar::LineSeparator, QLatin1Char(' '));
    if (index.data(kLigneForte).toBool()) {
        option->font.setWeight(QFont::DemiBold);
        option->fontMetrics = QFontMetrics(option->font);
    }
    if (index.data(kLigneDiscrete).toBool()) option->palette.setColor(QPalette::Text, texteDiscret(option->palette));
}

void DelegueLignes::paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyledItemDelegate::paint(peintre, option, index);
    // Where the keys stand, as long as nothing is chosen there.
    if (option.state.testFlag(QStyle::State_HasFocus) && !option.state.testFlag(QStyle::State_Selected))
        peintContourDeFocus(*peintre, QRectF(option.rect).adjusted(0, 1, -2, -1), accentLisible(option.palette));
}

QSize DelegueLignes::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(kPetit, kPetit);
}

bool DelegueLignes::helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                              const QModelIndex& index) {
    const bool bulle = evenement->type() == QEvent::ToolTip && index.isValid();
    if (!bulle || !index.data(Qt::ToolTipRole).isNull())
        return QStyledItemDelegate::helpEvent(evenement, vue, option, index);
    QStyleOptionViewItem ligne = option;
    initStyleOption(&ligne, index);
    const bool coupe = ligne.fontMetrics.horizontalAdvance(ligne.text) + kMoyen > option.rect.width();
    QToolTip::showText(evenement->globalPos(), coupe ? enInfobulle(ligne.text) : QString(), vue);
    return true;
}

QTreeView* vueDeLignes(const char* nom, const QString& pourLecteur, QAbstractItemModel* modele) {
    auto* vue = nomme(new QTreeView, nom, pourLecteur);
    vue->setModel(modele);
    modele->setParent(vue);
    vue->setItemDelegate(new DelegueLignes(vue));
    vue->setRootIsDecorated(false);
    vue->setExpandsOnDoubleClick(false);  // what is activated says what it does
    vue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vue->header()->setStretchLastSection(true);
    return vue;
}

QString ligneLue(const QModelIndex& index) {
    if (!index.isValid()) return {};
    QStringList textes;
    for (int colonne = 0; colonne < index.model()->columnCount(index.parent()); ++colonne)
        if (const QString texte = index.siblingAtColumn(colonne).data().toString(); !texte.isEmpty()) textes << texte;
    return textes.join(QStringLiteral(", "));
}

}  // namespace ui
