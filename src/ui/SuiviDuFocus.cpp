#include "ui/SuiviDuFocus.h"

#include <QHash>
#include <QRadioButton>
#include <algorithm>

namespace ui {

bool SuiviDuFocus::peutPrendre(const QWidget* widget) const {
    return widget && widget->isVisibleTo(&m_fenetre) && widget->isEnabledTo(&m_fenetre);
}

void SuiviDuFocus::donne(const std::string& demande) {
    auto* demandee = demande.empty() ? nullptr : m_fenetre.findChild<QWidget*>(QString::fromStdString(demande));
    QWidget* voulu = peutPrendre(demandee) ? demandee : peutPrendre(m_avant) ? m_avant.data() : &m_arbre;
    // A control of another window, the viewer's scroll bar, takes its own window's.
    if (demandee && demandee->window() != &m_fenetre) voulu = demandee;
    if (voulu->window()->focusWidget() != voulu) voulu->setFocus(Qt::OtherFocusReason);
}

// Qt puts nothing behind what takes no keys or lies in another window, as the opened part of a list does; the inside of a
// list or of a number goes with it.
void suisAuClavier(QWidget* apres, const QWidget& zone) {
    while (apres->focusPolicy() == Qt::NoFocus || zone.isAncestorOf(apres))
        apres = apres->previousInFocusChain();
    for (QWidget* widget : zone.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || widget == apres) continue;
        if (widget->window() != apres->window()) continue;
        QWidget::setTabOrder(apres, widget);
        apres = widget;
    }
}

void entreParLeChoisi(Liaison& liaison, QWidget& fenetre) {
    QHash<QWidget*, QList<QRadioButton*>> groupes;  // option buttons exclude one another within their parent
    for (auto* option : fenetre.findChildren<QRadioButton*>())
        groupes[option->parentWidget()].append(option);
    liaison.apresEcriture([groupes] {
        for (const QList<QRadioButton*>& groupe : groupes) {
            const bool choisie = std::ranges::any_of(groupe, [](const QRadioButton* o) { return o->isChecked(); });
            for (QRadioButton* option : groupe)
                option->setFocusPolicy(!choisie || option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        }
    });
}

}  // namespace ui
