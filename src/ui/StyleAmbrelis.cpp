#include "ui/StyleAmbrelis.h"

#include "ui/Couleurs.h"
#include "ui/Icones.h"
#include "ui/Mouvement.h"
#include "ui/Traits.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>
#include <QTreeView>

namespace ui {

namespace {

bool a(const QStyleOption& option, QStyle::StateFlag etat) {
    return option.state.testFlag(etat);
}

constexpr int kLigneDeListe = 28;  // of drop-down lists and menus
constexpr int kAvantLEntree = 5;   // of a closed list, beside the base style's own

bool estUnePetiteFenetre(const QWidget* widget) {
    return widget && widget->windowType() == Qt::Popup;
}

bool dansUnePetiteFenetre(const QWidget* widget) {
    return widget && estUnePetiteFenetre(widget->window());
}

void peintCadreDeSaisie(QPainter& peintre, const QStyleOption& option) {
    const bool actif = a(option, QStyle::State_Enabled);
    const bool focus = actif && a(option, QStyle::State_HasFocus);
    peintSurface(peintre, option.rect, actif ? option.palette.color(QPalette::Base) : voile(option.palette),
                 filet(option.palette));
    if (focus) peintContourDeFocus(peintre, option.rect, accentLisible(option.palette));
}

void peintListeDeroulante(QPainter& peintre, const QStyleOptionComboBox& option, const QRect& fleche) {
    if (option.editable) {
        peintCadreDeSaisie(peintre, option);
    } else {
        peintBouton(peintre, option, false);
        if (a(option, QStyle::State_HasFocus)) peintContourDeFocus(peintre, option.rect, accentLisible(option.palette));
    }
    peintChevron(peintre, fleche, 90, texteDiscret(option.palette));
}

void peintAscenseur(QPainter& peintre, const QStyleOptionSlider& option, QRect curseur) {
    const bool survol = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QColor calme =
        melange(option.palette.color(QPalette::WindowText), option.palette.color(QPalette::Base), survol ? 0.45 : 0.25);
    const QColor couleur = a(option, QStyle::State_HasFocus) ? accentLisible(option.palette) : calme;
    const int retrait = survol ? 2 : 3;
    curseur.adjust(retrait, retrait, -retrait, -retrait);
    peintSurface(peintre, curseur, couleur, {}, std::min(curseur.width(), curseur.height()) / 2.0);
}

constexpr qreal kDebord = 12;  // of a row beyond the column, hidden; more than its corners take

void peintLigneChoisie(QPainter& peintre, const QStyleOptionViewItem& option) {
    // In a list of several columns it is one row: only its ends are rounded.
    using Place = QStyleOptionViewItem::ViewItemPosition;
    const Place place = option.viewItemPosition;
    const qreal avant = place == Place::Middle || place == Place::End ? -kDebord : 0;
    const qreal apres = place == Place::Middle || place == Place::Beginning ? kDebord : -2;
    const QRectF zone = QRectF(option.rect).adjusted(avant, 1, apres, -1);
    peintre.save();
    peintre.setClipRect(option.rect, Qt::IntersectClip);
    if (a(option, QStyle::State_Selected))
        peintSurface(peintre, zone, accent(option.palette), {});
    else if (a(option, QStyle::State_MouseOver) && a(option, QStyle::State_Enabled))
        peintSurface(peintre, zone, voile(option.palette), {});
    peintre.restore();
}

// No arrows: the whole length is the groove.
QRect partieDAscenseur(const QStyleOptionSlider& ascenseur, QStyle::SubControl partie) {
    const bool couche = ascenseur.orientation == Qt::Horizontal;
    const QRect tout = ascenseur.rect;
    const int longueur = couche ? tout.width() : tout.height();
    const int etendue = ascenseur.maximum - ascenseur.minimum;
    const qint64 ensemble = qint64{etendue} + ascenseur.pageStep;
    const int curseur = ensemble > 0 ? std::clamp(static_cast<int>(qint64{longueur} * ascenseur.pageStep / ensemble),
                                                  std::min(28, longueur), longueur)
                                     : longueur;
    const int debut = QStyle::sliderPositionFromValue(ascenseur.minimum, ascenseur.maximum, ascenseur.sliderPosition,
                                                      longueur - curseur, ascenseur.upsideDown);
    const auto tranche = [&](int de, int sur) {
        return couche ? QRect(tout.x() + de, tout.y(), sur, tout.height())
                      : QRect(tout.x(), tout.y() + de, tout.width(), sur);
    };
    switch (partie) {
        case QStyle::SC_ScrollBarSlider:
            return tranche(debut, curseur);
        case QStyle::SC_ScrollBarGroove:
            return tout;
        case QStyle::SC_ScrollBarSubPage:
            return tranche(0, debut);
        case QStyle::SC_ScrollBarAddPage:
            return tranche(debut + curseur, longueur - debut - curseur);
        default:
            return {};
    }
}

}  // namespace

StyleAmbrelis::StyleAmbrelis() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void StyleAmbrelis::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                                  const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand: {
            const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
            peintBouton(*peintre, *option, bouton && bouton->features.testFlag(QStyleOptionButton::Flat));
            if (a(*option, State_HasFocus)) peintContourDeFocus(*peintre, option->rect, accentLisible(option->palette));
            return;
        }
        case PE_PanelButtonTool:
            peintBouton(*peintre, *option, true);
            return;
        case PE_PanelLineEdit: {
            const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (cadre && cadre->lineWidth > 0) peintCadreDeSaisie(*peintre, *option);
            return;
        }
        case PE_Frame:
            if (estUnePetiteFenetre(widget)) {
                peintSurface(*peintre, option->rect, option->palette.color(QPalette::Base), filet(option->palette));
                return;
            }
            peintSurface(*peintre, option->rect, {}, filet(option->palette));
            if (a(*option, State_HasFocus)) peintContourDeFocus(*peintre, option->rect, accentLisible(option->palette));
            return;
        case PE_FrameMenu:  // Fusion's cannot be told from a dark list below it
            peintSurface(*peintre, option->rect, {}, filet(option->palette), 0);
            return;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            peintCase(*peintre, *option);
            return;
        case PE_IndicatorRadioButton:
            peintRond(*peintre, *option);
            return;
        case PE_IndicatorBranch:
            if (a(*option, State_Children))
                peintChevron(*peintre, option->rect, a(*option, State_Open) ? 90 : 0, texteDiscret(option->palette));
            return;
        case PE_PanelItemViewRow:
            return;
        case PE_PanelItemViewItem: {
            const auto* ligne = qstyleoption_cast<const QStyleOptionViewItem*>(option);
            if (ligne) peintLigneChoisie(*peintre, *ligne);
            return;
        }
        case PE_FrameFocusRect:
            if (widget && (widget->inherits("QAbstractItemView") || widget->inherits("QPushButton"))) return;
            peintContourDeFocus(*peintre, QRectF(option->rect).adjusted(-2, -1, 2, 1), accentLisible(option->palette),
                                3);
            return;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, peintre, widget);
}

void StyleAmbrelis::drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                                const QWidget* widget) const {
    switch (element) {
        case CE_Splitter:
            return;
        case CE_PushButtonBevel: {
            // Fusion paints nothing for a flat button that is not pressed: neither the mouse nor the focus would show.
            const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
            if (!bouton || !bouton->features.testFlag(QStyleOptionButton::Flat)) break;
            proxy()->drawPrimitive(PE_PanelButtonCommand, option, peintre, widget);
            return;
        }
        case CE_ProgressBarGroove: {
            const auto* barre = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
            if (barre && barre->progress > barre->minimum)
                peintSurface(*peintre, option->rect, voile(option->palette), {});
            return;
        }
        case CE_ProgressBarContents: {
            const auto* barre = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
            if (!barre || barre->maximum <= barre->minimum) break;
            QRectF fait = option->rect;
            fait.setWidth(fait.width() * (barre->progress - barre->minimum) / (barre->maximum - barre->minimum));
            if (fait.width() > 1) peintSurface(*peintre, fait, accent(option->palette), {});
            return;
        }
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, peintre, widget);
}

void StyleAmbrelis::drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option, QPainter* peintre,
                                       const QWidget* widget) const {
    if (controle == CC_ComboBox) {
        const auto* liste = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (liste)
            return peintListeDeroulante(*peintre, *liste, subControlRect(controle, option, SC_ComboBoxArrow, widget));
    }
    if (controle == CC_ScrollBar) {
        const auto* ascenseur = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (ascenseur && ascenseur->maximum > ascenseur->minimum)
            peintAscenseur(*peintre, *ascenseur, subControlRect(controle, option, SC_ScrollBarSlider, widget));
        return;
    }
    QProxyStyle::drawComplexControl(controle, option, peintre, widget);
}

int StyleAmbrelis::pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const {
    switch (mesure) {
        case PM_ButtonMargin:
            return 16;
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_MenuPanelWidth:
            return 1;
        case PM_ScrollBarExtent:
            return 12;
        case PM_SplitterWidth:
            return 16;
        case PM_DefaultFrameWidth:
            if (estUnePetiteFenetre(widget)) return 3;  // the rows leave its corners free
            // Room for the outline that tells which of them has the focus.
            return qobject_cast<const QTreeView*>(widget) || qobject_cast<const QPlainTextEdit*>(widget)
                       ? 2
                       : QProxyStyle::pixelMetric(mesure, option, widget);
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return 16;
        case PM_HeaderMargin:
            return 5;
        case PM_FocusFrameHMargin:  // of a row's text from its ends: those are round where it is chosen
            return qobject_cast<const QTreeView*>(widget) || qobject_cast<const QTableView*>(widget)
                       ? 5
                       : QProxyStyle::pixelMetric(mesure, option, widget);
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return 8;
        default:
            return QProxyStyle::pixelMetric(mesure, option, widget);
    }
}

int StyleAmbrelis::styleHint(StyleHint conseil, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* retour) const {
    switch (conseil) {
        case SH_ComboBox_Popup:
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_Widget_Animation_Duration:
            // Headings open at once: keys and clicks that follow find the rows in their places.
            return qobject_cast<const QTreeView*>(widget)
                       ? 0
                       : std::min(QProxyStyle::styleHint(conseil, option, widget, retour), dureeDuMouvement());
        case SH_EtchDisabledText:
        case SH_ItemView_ArrowKeysNavigateIntoChildren:
            return conseil == SH_EtchDisabledText ? 0 : 1;
        case SH_ScrollBar_Transient:
            return 0;
        default:
            return QProxyStyle::styleHint(conseil, option, widget, retour);
    }
}

QSize StyleAmbrelis::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contenu,
                                      const QWidget* widget) const {
    QSize taille = QProxyStyle::sizeFromContents(type, option, contenu, widget);
    const int haute = option ? option->fontMetrics.height() + 16 : 0;  // a button is as high as the field beside it
    switch (type) {
        case CT_PushButton: {
            const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option);
            const int icone = bouton && !bouton->icon.isNull() ? bouton->iconSize.height() + 16 : 0;
            return {taille.width(), std::max(haute, icone)};
        }
        case CT_ComboBox:
            return {taille.width() + kAvantLEntree, std::max(taille.height(), haute)};
        case CT_ToolButton:
        case CT_LineEdit:
            return {taille.width(), std::max(taille.height(), haute)};
        case CT_ItemViewItem:
            return {taille.width(),
                    dansUnePetiteFenetre(widget) ? std::max(taille.height(), kLigneDeListe) : taille.height()};
        case CT_MenuItem: {
            const auto* ligne = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            const bool trait = ligne && ligne->menuItemType == QStyleOptionMenuItem::Separator;
            return {taille.width(), trait ? taille.height() : std::max(taille.height(), kLigneDeListe)};
        }
        case CT_CheckBox:
        case CT_RadioButton:
            return {taille.width(), std::max(taille.height(), 22)};
        default:
            return taille;
    }
}

QIcon StyleAmbrelis::standardIcon(StandardPixmap image, const QStyleOption* option, const QWidget* widget) const {
    switch (image) {
        case SP_MessageBoxQuestion:
            return iconeDeBoite(QStringLiteral("dialog-question"), Pictogramme::Question);
        case SP_MessageBoxInformation:
            return iconeDeBoite(QStringLiteral("dialog-information"), Pictogramme::Aide);
        case SP_MessageBoxWarning:
            return iconeDeBoite(QStringLiteral("dialog-warning"), Pictogramme::Attention);
        case SP_MessageBoxCritical:
            return iconeDeBoite(QStringLiteral("dialog-error"), Pictogramme::Erreur);
        default:
            return QProxyStyle::standardIcon(image, option, widget);
    }
}

QRect StyleAmbrelis::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    const QRect zone = QProxyStyle::subElementRect(element, option, widget);
    const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
    return element == SE_LineEditContents && cadre && cadre->lineWidth > 0 ? zone.adjusted(4, 0, -4, 0) : zone;
}

QRect StyleAmbrelis::subControlRect(ComplexControl controle, const QStyleOptionComplex* option, SubControl partie,
                                    const QWidget* widget) const {
    const QRect zone = QProxyStyle::subControlRect(controle, option, partie, widget);
    if (controle == CC_ComboBox && partie == SC_ComboBoxEditField) return zone.adjusted(kAvantLEntree, 0, 0, 0);
    const auto* ascenseur = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return controle == CC_ScrollBar && ascenseur ? partieDAscenseur(*ascenseur, partie) : zone;
}

}  // namespace ui
