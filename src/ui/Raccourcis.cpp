#include "ui/Raccourcis.h"

#include "app/Annulation.h"
#include "app/Collection.h"
#include "app/Commandes.h"
#include "app/RaccourcisClavier.h"
#include "browse/cmdFonctionRecherche_Click.h"
#include "ui/FenetreGuide.h"
#include "ui/PanneauFiche.h"
#include "ui/VueTitres.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextDocument>
#include <QTextEdit>
#include <functional>

namespace ui {

namespace {

// What the menu key asks of the control in use.
void demandeMenu() {
    QWidget* focus = QApplication::focusWidget();
    if (!focus) return;
    const QPoint endroit = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent evenement(QContextMenuEvent::Keyboard, endroit, focus->mapToGlobal(endroit));
    QCoreApplication::sendEvent(focus, &evenement);
}

struct Reprises {
    bool annuler = false;
    bool retablir = false;
};

Reprises reprisesDe(const QTextDocument& texte) {
    return {texte.isUndoAvailable(), texte.isRedoAvailable()};
}

// What a field could take back or make again of its own text.
Reprises reprisesDe(const QObject* champ) {
    if (const auto* liste = qobject_cast<const QComboBox*>(champ)) champ = liste->lineEdit();
    if (const auto* ligne = qobject_cast<const QLineEdit*>(champ))
        return {ligne->isUndoAvailable(), ligne->isRedoAvailable()};
    if (const auto* texte = qobject_cast<const QTextEdit*>(champ))
        return texte->isReadOnly() ? Reprises{} : reprisesDe(*texte->document());
    if (const auto* texte = qobject_cast<const QPlainTextEdit*>(champ))
        return texte->isReadOnly() ? Reprises{} : reprisesDe(*texte->document());
    return {};
}

}  // namespace

Raccourcis::Raccourcis(const Atelier& atelier, QWidget* fenetre)
    : m_atelier(atelier), m_fenetre(fenetre), m_pressePapiers(atelier, fenetre) {
    const std::pair<QKeySequence, std::function<void()>> touches[] = {
        {Qt::CTRL | Qt::Key_F, atelier.reponse(browse::cmdFonctionRecherche_Click)},
        {Qt::CTRL | Qt::Key_L, atelier.reponse(app::cmdCollection_Click)},
        {Qt::CTRL | Qt::Key_N, atelier.reponse(app::SaisieManuelle)},
        {Qt::CTRL | Qt::Key_O, atelier.reponse(app::cmdChargeOuvreBase_Click)},
        {Qt::CTRL | Qt::Key_Q, atelier.reponse(&app::Session::cmdStop_Click)},
        {Qt::CTRL | Qt::Key_Return, atelier.reponse(app::ValideSaisie)},
        {Qt::CTRL | Qt::Key_Enter, atelier.reponse(app::ValideSaisie)},
        {Qt::CTRL | Qt::Key_Z, atelier.reponse(app::cmdAnnuler_Click)},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, atelier.reponse(app::cmdRetablir_Click)},
        {Qt::Key_F2, atelier.reponse(app::ModifieFilmAffiche)}};
    for (const auto& [touche, reponse] : touches) {
        auto* raccourci = new QShortcut(touche, fenetre);
        QObject::connect(raccourci, &QShortcut::activated, &atelier.commande, reponse);
    }
    QObject::connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, fenetre), &QShortcut::activated, fenetre, demandeMenu);
    qApp->installEventFilter(this);
}

bool Raccourcis::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::ShortcutOverride) return false;
    const auto* touche = static_cast<const QKeyEvent*>(evenement);
    if (touche->key() == Qt::Key_K && touche->modifiers() == Qt::ControlModifier) {  // a field would cut its text there
        evenement->ignore();
        return true;
    }
    const bool annuler = touche->matches(QKeySequence::Undo);
    if ((!annuler && !touche->matches(QKeySequence::Redo)) || objet != m_fenetre->focusWidget()) return false;
    const Reprises reprises = reprisesDe(objet);
    if (annuler ? reprises.annuler : reprises.retablir) return false;
    evenement->ignore();
    return true;
}

// Esc closes a list and Del takes a letter away first: only what the controls leave comes here.
bool Raccourcis::prends(const QKeyEvent& evenement) const {
    if (m_pressePapiers.prends(evenement)) return true;
    if (evenement.modifiers() & ~Qt::KeypadModifier) return false;
    if (evenement.key() == Qt::Key_Escape) {
        m_atelier.execute(app::QuittePanneau);
        return true;
    }
    if (evenement.key() == Qt::Key_F1) {  // no shortcut: the poster viewer has its own F1
        demandeLeGuide(m_atelier, m_fenetre->focusWidget());
        return true;
    }
    if (evenement.key() != Qt::Key_Delete || !surLeFilm()) return false;
    m_atelier.execute(app::SupprimeFilmAffiche);
    return true;
}

// The tree or the sheet has the focus, and nothing can be typed there.
bool Raccourcis::surLeFilm() const {
    const QWidget* focus = m_fenetre->focusWidget();
    if (!focus || focus->testAttribute(Qt::WA_InputMethodEnabled)) return false;
    for (const QWidget* widget = focus; widget; widget = widget->parentWidget())
        if (qobject_cast<const VueTitres*>(widget) || qobject_cast<const PanneauFiche*>(widget)) return true;
    return false;
}

}  // namespace ui
