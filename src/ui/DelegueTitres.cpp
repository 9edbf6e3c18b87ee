#include "ui/DelegueTitres.h"

#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/ModeleArbre.h"
#include "ui/Traits.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace ui {

namespace {

constexpr int kAir = 4;             // above and below the text
constexpr int kMargeDuNombre = 10;  // right of a heading's number
constexpr qreal kTeinteDesLettres = 0.22;

int largeurDuNombre(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QString nombre = QString::number(index.data(ModeleArbre::NombreDEnfants).toInt());
    return QFontMetrics(option.font).horizontalAdvance(nombre) + 2 * kMargeDuNombre;
}

// Behind the letters and under them; on a chosen row a tint would take their contrast away.
void peintLettres(QPainter& peintre, const QStyleOptionViewItem& ligne, const QRect& zone, const QString& montre,
                  const ModeleArbre::Plages& plages) {
    const bool choisie = ligne.state.testFlag(QStyle::State_Selected);
    const QFontMetrics& mesure = ligne.fontMetrics;
    const int haut = zone.center().y() - mesure.height() / 2, bas = haut + mesure.height();
    for (const auto& [debut, nombre] : plages) {
        if (debut >= montre.size()) return;
        const int gauche = zone.left() + mesure.horizontalAdvance(montre, static_cast<int>(debut));
        const int droite = zone.left() + mesure.horizontalAdvance(montre, static_cast<int>(debut + nombre));
        if (!choisie)
            peintre.fillRect(QRect(QPoint(gauche, haut), QPoint(droite - 1, bas - 1)),
                             melange(accent(ligne.palette), ligne.palette.color(QPalette::Base), kTeinteDesLettres));
        peintre.fillRect(QRect(gauche, bas - 1, droite - gauche, 2),
                         choisie ? ligne.palette.color(QPalette::HighlightedText) : accentLisible(ligne.palette));
    }
}

}  // namespace

void DelegueTitres::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = option->text.trimmed();
    option->state &= ~QStyle::State_HasFocus;
    if (!index.data(ModeleArbre::EstGroupe).toBool()) return;
    option->font.setWeight(QFont::DemiBold);
    option->fontMetrics = QFontMetrics(option->font);
}

void DelegueTitres::paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem ligne = option;
    initStyleOption(&ligne, index);
    const QStyle* style = ligne.widget ? ligne.widget->style() : QApplication::style();
    const bool groupe = index.data(ModeleArbre::EstGroupe).toBool();
    const int place = groupe ? largeurDuNombre(option, index) : 0;
    const auto lettres = index.data(ModeleArbre::Lettres).value<ModeleArbre::Plages>();
    const QString texte = ligne.text;
    const QRect entier = ligne.rect;
    if (groupe || !lettres.isEmpty()) ligne.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &ligne, peintre, ligne.widget);
    // Where the keys stand, as long as nothing is chosen there.
    if (option.state.testFlag(QStyle::State_HasFocus) && !ligne.state.testFlag(QStyle::State_Selected))
        peintContourDeFocus(*peintre, QRectF(entier).adjusted(0, 1, -2, -1), accentLisible(ligne.palette));
    if (!groupe && lettres.isEmpty()) return;

    ligne.text = texte;
    const bool choisie = ligne.state.testFlag(QStyle::State_Selected);
    const QRect zone =
        style->subElementRect(QStyle::SE_ItemViewItemText, &ligne, ligne.widget).adjusted(4, 0, -place, 0);
    peintre->save();
    peintre->setFont(ligne.font);
    const QString montre = ligne.fontMetrics.elidedText(texte, Qt::ElideRight, zone.width());
    peintLettres(*peintre, ligne, zone, montre, lettres);
    peintre->setPen(ligne.palette.color(choisie ? QPalette::HighlightedText : QPalette::Text));
    peintre->drawText(zone, Qt::AlignVCenter | Qt::AlignLeft, montre);
    if (!groupe) {
        peintre->restore();
        return;
    }
    peintre->setFont(option.font);
    if (!choisie) peintre->setPen(texteDiscret(ligne.palette));
    peintre->drawText(entier.adjusted(0, 0, -kMargeDuNombre, 0), Qt::AlignVCenter | Qt::AlignRight,
                      QString::number(index.data(ModeleArbre::NombreDEnfants).toInt()));
    peintre->restore();
}

QSize DelegueTitres::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {option.fontMetrics.averageCharWidth() * 20, option.fontMetrics.height() + 2 * kAir};
}

bool DelegueTitres::helpEvent(QHelpEvent* evenement, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                              const QModelIndex& index) {
    if (evenement->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(evenement, vue, option, index);
    QStyleOptionViewItem ligne = option;
    initStyleOption(&ligne, index);
    const int place = index.data(ModeleArbre::EstGroupe).toBool() ? largeurDuNombre(option, index) : 0;
    const bool coupe = ligne.fontMetrics.horizontalAdvance(ligne.text) + 12 > option.rect.width() - place;
    QToolTip::showText(evenement->globalPos(), coupe ? enInfobulle(ligne.text) : QString(), vue);
    return true;
}

}  // namespace ui
