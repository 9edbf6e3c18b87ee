#include "ui/Boutons.h"

#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/Traits.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

namespace ui {

namespace {

// Of a text of megabytes, no more is measured than a line could ever show.
QString debut(const QString& texte) {
    constexpr qsizetype kParLigne = 2000;  // characters
    return texte.left(kParLigne);
}

}  // namespace

void BoutonAccent::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (isEnabled()) {
        const bool survol = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
        const QColor plein = accent(palette());
        peintSurface(peintre, rect(), survol ? accentSurvole(palette()) : plein, {});
        if (hasFocus())
            peintContourDeFocus(peintre, QRectF(rect()).adjusted(2, 2, -2, -2),
                                palette().color(QPalette::Active, QPalette::HighlightedText), 3);
        option.palette.setColor(QPalette::ButtonText, palette().color(QPalette::Active, QPalette::HighlightedText));
    } else {
        peintre.drawControl(QStyle::CE_PushButtonBevel, option);
    }
    peintre.drawControl(QStyle::CE_PushButtonLabel, option);
}

QSize BoutonOnglet::sizeHint() const {
    QFont gras = font();
    gras.setBold(true);
    const QFontMetrics mesure(gras);  // the page that opens must not push its neighbours aside
    return {mesure.size(Qt::TextShowMnemonic, text()).width() + 28, mesure.height() + 16};
}

void BoutonOnglet::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features |= QStyleOptionButton::Flat;
    if (option.state.testFlag(QStyle::State_Enabled)) peintBouton(peintre, option, true);
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accentLisible(palette()));
    const bool calme = !font().bold() && !option.state.testFlag(QStyle::State_MouseOver) && !isDown();
    if (calme && isEnabled()) option.palette.setColor(QPalette::ButtonText, texteDiscret(palette()));
    peintre.drawControl(QStyle::CE_PushButtonLabel, option);
    if (font().bold()) peintSurface(peintre, QRectF(10, height() - 3, width() - 20, 3), accent(palette()), {}, 1.5);
}

BoutonLien::BoutonLien(const QString& texte, QWidget* parent) : QAbstractButton(parent) {
    setText(texte);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize BoutonLien::sizeHint() const {
    const QSize texteSeul = fontMetrics().size(Qt::TextShowMnemonic, debut(text()));
    const int place = icon().isNull() ? 0 : iconSize().width() + 6;
    return {texteSeul.width() + place + 2, std::max(texteSeul.height(), icon().isNull() ? 0 : iconSize().height()) + 6};
}

QSize BoutonLien::minimumSizeHint() const {
    return {std::min(sizeHint().width(), 80), sizeHint().height()};
}

void BoutonLien::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    QRect zone = rect();
    if (!icon().isNull()) {
        const QRect image(zone.left(), (height() - iconSize().height()) / 2, iconSize().width(), iconSize().height());
        icon().paint(&peintre, image, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        zone.setLeft(image.right() + 7);
    }
    QFont police = font();
    police.setUnderline(isEnabled() && (underMouse() || hasFocus()));
    peintre.setFont(police);
    peintre.setPen(isEnabled() ? accentLisible(palette()) : palette().color(QPalette::Disabled, QPalette::WindowText));
    const QString visible =
        fontMetrics().elidedText(debut(text()), Qt::ElideRight, zone.width() + 1, Qt::TextShowMnemonic);
    peintre.drawText(zone, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, visible);
    if (hasFocus()) peintre.fillRect(QRect(0, height() - 2, width(), 2), accentLisible(palette()));
}

bool BoutonLien::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip || width() >= sizeHint().width()) return QAbstractButton::event(evenement);
    QString entier = text();
    entier.replace(QLatin1String("&&"), QLatin1String("&"));
    if (!toolTip().isEmpty()) entier += QLatin1Char('\n') + toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), enInfobulle(entier), this);
    return true;
}

void BoutonLien::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Return && evenement->key() != Qt::Key_Enter)
        return QAbstractButton::keyPressEvent(evenement);
    click();
}

CaseRepliee::CaseRepliee(const QString& texte, QWidget* parent) : QCheckBox(texte, parent) {
    QSizePolicy politique(QSizePolicy::Preferred, QSizePolicy::Preferred);
    politique.setHeightForWidth(true);
    setSizePolicy(politique);
}

int CaseRepliee::retrait() const {
    return style()->pixelMetric(QStyle::PM_IndicatorWidth) + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
}

QSize CaseRepliee::sizeHint() const {
    const int largeur = fontMetrics().size(Qt::TextShowMnemonic, text()).width() + retrait() + 4;
    return {largeur, heightForWidth(largeur)};
}

QSize CaseRepliee::minimumSizeHint() const {
    return {retrait() + fontMetrics().averageCharWidth() * 12, heightForWidth(sizeHint().width())};
}

int CaseRepliee::heightForWidth(int largeur) const {
    const QRect place(0, 0, largeur - retrait(), 1000);
    return std::max(22,
                    fontMetrics().boundingRect(place, Qt::TextWordWrap | Qt::TextShowMnemonic, text()).height() + 4);
}

void CaseRepliee::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int cote = style()->pixelMetric(QStyle::PM_IndicatorWidth);
    const QRect zone = rect();
    option.rect = QRect(0, 2 + std::max(0, (fontMetrics().height() - cote) / 2), cote, cote);
    peintre.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
    const QRect texte = zone.adjusted(retrait(), 2, 0, 0);
    style()->drawItemText(&peintre, texte, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic,
                          palette(), isEnabled(), text(), QPalette::WindowText);
    if (!hasFocus()) return;
    option.rect = texte;
    peintre.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void ListeDeroulante::showPopup() {
    emit vaSOuvrir();
    QComboBox::showPopup();
}

// An entry is chosen once the list is hidden.
void ListeDeroulante::hidePopup() {
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(this, &ListeDeroulante::sEstFermee, Qt::QueuedConnection);
}

void ListeDeroulante::wheelEvent(QWheelEvent* evenement) {
    evenement->ignore();
}

}  // namespace ui
