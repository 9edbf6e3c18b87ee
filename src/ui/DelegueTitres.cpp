#include "ui/DelegueTitres.h"

#include "ui/Couleurs.h"
#include "ui/Icones.h"
#include "ui/Infobulles.h"
#include "ui/Marques.h"
#include "ui/ModeleArbre.h"
#include "ui/Traits.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

namespace ui {

namespace {

constexpr int kAir = 4;             // above and below the text
constexpr int kMargeDuNombre = 10;  // right of a heading's number
constexpr int kAvantLeTexte = 4, kEntreMarques = 5;
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

QColor encre(const QStyleOptionViewItem& ligne) {
    const bool choisie = ligne.state.testFlag(QStyle::State_Selected);
    return ligne.palette.color(choisie ? QPalette::HighlightedText : QPalette::Text);
}

// At the right of a heading; how much room it takes.
int peintNombre(QPainter& peintre, const QStyleOptionViewItem& ligne, const QFont& police, const QModelIndex& index) {
    peintre.setFont(police);
    peintre.setPen(ligne.state.testFlag(QStyle::State_Selected) ? encre(ligne) : texteDiscret(ligne.palette));
    peintre.drawText(ligne.rect.adjusted(0, 0, -kMargeDuNombre, 0), Qt::AlignVCenter | Qt::AlignRight,
                     QString::number(index.data(ModeleArbre::NombreDEnfants).toInt()));
    return largeurDuNombre(ligne, index);
}

// At the right of a film, the one that most have last; how much room they take.
int peintMarques(QPainter& peintre, const QStyleOptionViewItem& ligne, const browse::MarquesFilm& marques) {
    const bool choisie = ligne.state.testFlag(QStyle::State_Selected);
    const QColor calme = choisie ? encre(ligne) : texteDiscret(ligne.palette);
    const QColor vive = choisie ? encre(ligne) : accentLisible(ligne.palette);
    const int cote = ligne.fontMetrics.ascent();
    int droite = ligne.rect.right() - kMargeDuNombre + 1;
    for (const Marque& marque : marquesDessinees(marques)) {
        peintPictogramme(peintre, QRect(droite - cote, ligne.rect.center().y() - cote / 2, cote, cote),
                         marque.pictogramme, marque.vive ? vive : calme);
        droite -= cote + kEntreMarques;
    }
    return ligne.rect.right() + 1 - droite;
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
    const QString texte = std::exchange(ligne.text, QString());
    style->drawControl(QStyle::CE_ItemViewItem, &ligne, peintre, ligne.widget);
    // Where the keys stand, as long as nothing is chosen there.
    if (option.state.testFlag(QStyle::State_HasFocus) && !ligne.state.testFlag(QStyle::State_Selected))
        peintContourDeFocus(*peintre, QRectF(ligne.rect).adjusted(0, 1, -2, -1), accentLisible(ligne.palette));

    ligne.text = texte;
    peintre->save();
    const int place =
        index.data(ModeleArbre::EstGroupe).toBool()
            ? peintNombre(*peintre, ligne, option.font, index)
            : peintMarques(*peintre, ligne, index.data(ModeleArbre::Marques).value<browse::MarquesFilm>());
    const QRect zone =
        style->subElementRect(QStyle::SE_ItemViewItemText, &ligne, ligne.widget).adjusted(kAvantLeTexte, 0, -place, 0);
    const QString montre = ligne.fontMetrics.elidedText(texte, Qt::ElideRight, zone.width());
    peintLettres(*peintre, ligne, zone, montre, index.data(ModeleArbre::Lettres).value<ModeleArbre::Plages>());
    peintre->setFont(ligne.font);
    peintre->setPen(encre(ligne));
    peintre->drawText(zone, Qt::AlignVCenter | Qt::AlignLeft, montre);
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
    if (!index.data(ModeleArbre::EstGroupe).toBool()) {
        const QString texte = index.data(Qt::ToolTipRole).toString();
        QToolTip::showText(evenement->globalPos(), enInfobulle(texte.isEmpty() ? ligne.text : texte), vue);
        return true;
    }
    const int place = largeurDuNombre(option, index);
    const bool coupe = ligne.fontMetrics.horizontalAdvance(ligne.text) + 12 > option.rect.width() - place;
    QToolTip::showText(evenement->globalPos(), coupe ? enInfobulle(ligne.text) : QString(), vue);
    return true;
}

}  // namespace ui
