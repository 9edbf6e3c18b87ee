#include "ui/Boutons.h"

#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/Lecteur.h"
#include "ui/Traits.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QBitmap>
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

// The corners of a window cannot be counted on to be transparent: not every desktop composes.
void donneLaFormeDuChamp(QWidget& liste) {
    QBitmap forme(liste.size());
    forme.clear();
    QPainter peintre(&forme);
    peintre.setBrush(Qt::color1);
    peintre.setPen(Qt::color1);
    peintre.drawRoundedRect(liste.rect().adjusted(0, 0, -1, -1), kRayon, kRayon);
    peintre.end();
    liste.setMask(forme);
}

}  // namespace

void BoutonAccent::metPrincipal(bool principal) {
    if (m_principal == principal) return;
    m_principal = principal;
    update();
}

void BoutonAccent::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (isEnabled() && m_principal) {
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

BoutonDePanneau::BoutonDePanneau(const QString& texte) : QPushButton(texte) {
    setFlat(true);
    setCheckable(true);
    setIconSize({18, 18});
}

void BoutonDePanneau::paintEvent(QPaintEvent* evenement) {
    QPushButton::paintEvent(evenement);
    if (!isChecked()) return;
    QPainter peintre(this);
    peintSurface(peintre, QRectF(10, height() - 3, width() - 20, 3), accent(palette()), {}, 1.5);
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

Bascule::Bascule(const QString& texte, const QString& signe, QWidget* parent)
    : QCheckBox(texte, parent), m_signe(signe) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize Bascule::sizeHint() const {
    const int haute = fontMetrics().height() + 8;
    return {std::max(haute, fontMetrics().horizontalAdvance(m_signe) + 14), haute};
}

void Bascule::paintEvent(QPaintEvent*) {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool allumee = isChecked() && isEnabled();
    if (allumee)
        peintSurface(peintre, rect(),
                     option.state & QStyle::State_MouseOver ? accentSurvole(palette()) : accent(palette()), {});
    else
        peintBouton(peintre, option, false);
    if (hasFocus())
        peintContourDeFocus(
            peintre, rect(),
            allumee ? palette().color(QPalette::Active, QPalette::HighlightedText) : accentLisible(palette()));
    style()->drawItemText(&peintre, rect(), Qt::AlignCenter, palette(), isEnabled(), m_signe,
                          allumee ? QPalette::HighlightedText : QPalette::ButtonText);
}

ListeDeroulante::ListeDeroulante(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::currentTextChanged, this, [this](const QString& entree) {
        decrisLEntree();
        if (hasFocus() && !isEditable() && !view()->isVisible()) annonce(window(), entree);
    });
}

// Its name is that of its caption; without one Qt gives the entry for its name, and hides the name that it was given.
void ListeDeroulante::decrisLEntree() {
    const QAccessibleInterface* lue = isEditable() ? nullptr : QAccessible::queryAccessibleInterface(this);
    if (!lue) return;
    const bool legendee = !lue->relations(QAccessible::Label).isEmpty();
    const QString entree = legendee ? currentText() : accessibleName() + QStringLiteral(" : ") + currentText();
    if (accessibleDescription() != entree) setAccessibleDescription(entree);
}

void ListeDeroulante::focusInEvent(QFocusEvent* evenement) {
    decrisLEntree();
    QComboBox::focusInEvent(evenement);
}

void ListeDeroulante::showPopup() {
    emit vaSOuvrir();
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    donneLaFormeDuChamp(*view()->window());
}

// Qt keeps the least size of a list without entries.
QSize ListeDeroulante::minimumSizeHint() const {
    return sizeAdjustPolicy() == AdjustToContents ? sizeHint() : QComboBox::minimumSizeHint();
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
