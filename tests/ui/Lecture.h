#pragma once

#include "Attente.h"

#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <QWindow>
#include <QtGlobal>
#include <algorithm>
#include <string>
#include <vector>

// What a screen reader makes of the accessible tree: words, never widgets.
namespace essais {

inline QString nomLu(QAccessibleInterface& objet) {
    // Qt gives a list's value for its name here, as it does over the bus: its caption names it.
    if (objet.role() == QAccessible::ComboBox || objet.text(QAccessible::Name).isEmpty())
        for (const auto& [legende, relation] : objet.relations(QAccessible::Label))
            if (legende && !legende->text(QAccessible::Name).isEmpty()) return legende->text(QAccessible::Name);
    return objet.role() == QAccessible::ComboBox ? QString() : objet.text(QAccessible::Name);
}

inline QString roleLu(QAccessible::Role role) {
    switch (role) {
        case QAccessible::Button:
            return "bouton";
        case QAccessible::CheckBox:
            return "case à cocher";
        case QAccessible::RadioButton:
            return "bouton radio";
        case QAccessible::ComboBox:
            return "liste déroulante";
        case QAccessible::EditableText:
            return "champ";
        case QAccessible::PageTab:
            return "onglet";
        case QAccessible::TreeItem:
            return "ligne";
        case QAccessible::ListItem:
            return "élément";
        case QAccessible::MenuItem:
            return "entrée de menu";
        case QAccessible::Graphic:
            return "image";
        case QAccessible::Slider:
            return "curseur";
        case QAccessible::SpinBox:
            return "nombre";
        case QAccessible::ProgressBar:
            return "avancement";
        case QAccessible::Notification:
            return "annonce";
        case QAccessible::AlertMessage:
            return "alerte";
        case QAccessible::Dialog:
            return "boîte";
        case QAccessible::Window:
            return "fenêtre";
        case QAccessible::PopupMenu:
            return "menu";
        default:
            return QString("rôle %1").arg(role, 0, 16);
    }
}

inline QString phrase(QAccessibleInterface& objet) {
    QStringList mots{nomLu(objet), roleLu(objet.role())};
    const QAccessible::State etat = objet.state();
    if (etat.checkable) mots << (etat.checked ? "coché" : "non coché");
    if (etat.selectable && etat.selected) mots << "choisi";
    if (etat.expandable) mots << (etat.expanded ? "ouvert" : "fermé");
    if (etat.disabled) mots << "inactif";
    if (auto* valeur = objet.valueInterface())
        mots << valeur->currentValue().toString();
    else if (const QString texte = objet.text(QAccessible::Value); !texte.isEmpty())
        mots << texte;
    if (const QString description = objet.text(QAccessible::Description); !description.isEmpty())
        mots << "(" + description + ")";
    return mots.join(", ");
}

// Calls `visite` with all that is to be seen below.
template <typename Visite>
void parcours(QAccessibleInterface* objet, const Visite& visite) {
    if (!objet || objet->state().invisible) return;
    visite(*objet);
    for (int rang = 0; rang < objet->childCount(); ++rang)
        parcours(objet->child(rang), visite);
}

// What has the keys: the innermost of what says so.
inline QAccessibleInterface* focusLu() {
    QWindow* fenetre = QGuiApplication::focusWindow();
    QAccessibleInterface* objet = fenetre ? fenetre->accessibleRoot() : nullptr;
    for (QAccessibleInterface* dedans = objet; dedans;) {
        dedans = objet->focusChild();
        if (!dedans || dedans == objet) break;
        objet = dedans;
    }
    return objet;
}

// What was announced last, wherever the keys are; the pages that are chosen; the texts of the box that is open, the
// entries of the menu.
inline QString annonceLue() {
    QStringList textes;
    QAccessibleInterface* programme = QAccessible::queryAccessibleInterface(qApp);
    for (int rang = 0; rang < programme->childCount(); ++rang)
        parcours(programme->child(rang), [&](QAccessibleInterface& objet) {
            if (objet.role() == QAccessible::Notification) textes << objet.text(QAccessible::Name) + ", annonce";
            if (objet.role() == QAccessible::PageTab && objet.state().selected) textes << phrase(objet);
        });
    return textes.join('\n');
}
inline QString boiteLue() {
    QStringList textes;
    QAccessibleInterface* programme = QAccessible::queryAccessibleInterface(qApp);
    for (int rang = 0; rang < programme->childCount(); ++rang) {
        QAccessibleInterface* fenetre = programme->child(rang);
        const QAccessible::Role role = fenetre->role();
        if (role == QAccessible::AlertMessage || role == QAccessible::Dialog || role == QAccessible::PopupMenu)
            parcours(fenetre, [&](QAccessibleInterface& objet) {
                if (objet.role() == QAccessible::StaticText || objet.role() == QAccessible::MenuItem)
                    textes << phrase(objet);
            });
    }
    return textes.join('\n');
}

}  // namespace essais
