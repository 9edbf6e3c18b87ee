#include "ui/Raccourcis.h"

#include "ui/PanneauFiche.h"
#include "ui/VueTitres.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QShortcut>

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

}  // namespace

Raccourcis::Raccourcis(const Atelier& atelier, QWidget* fenetre) : m_atelier(atelier), m_fenetre(fenetre) {
    const std::pair<QKeySequence, void (app::Session::*)()> touches[] = {
        {Qt::CTRL | Qt::Key_F, &app::Session::cmdFonctionRecherche_Click},
        {Qt::CTRL | Qt::Key_N, &app::Session::SaisieManuelle},
        {Qt::CTRL | Qt::Key_O, &app::Session::cmdChargeOuvreBase_Click},
        {Qt::CTRL | Qt::Key_Q, &app::Session::cmdStop_Click},
        {Qt::CTRL | Qt::Key_Return, &app::Session::ValideSaisie},
        {Qt::CTRL | Qt::Key_Enter, &app::Session::ValideSaisie},
        {Qt::Key_F2, &app::Session::ModifieFilmAffiche}};
    for (const auto& [touche, procedure] : touches) {
        auto* raccourci = new QShortcut(touche, fenetre);
        QObject::connect(raccourci, &QShortcut::activated, &atelier.commande,
                         [s = &atelier.session, c = &atelier.commande, procedure = procedure] {
                             c->execute([=] { (s->*procedure)(); });
                         });
    }
    QObject::connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, fenetre), &QShortcut::activated, fenetre, demandeMenu);
}

// Esc closes a list and Del takes a letter away first: only what the controls leave comes here.
bool Raccourcis::prends(const QKeyEvent& evenement) const {
    if (evenement.modifiers() & ~Qt::KeypadModifier) return false;
    app::Session& session = m_atelier.session;
    if (evenement.key() == Qt::Key_Escape) {
        m_atelier.commande.execute([&] { session.QuittePanneau(); });
        return true;
    }
    if (evenement.key() == Qt::Key_F1) {  // no shortcut: the poster viewer has its own F1
        m_atelier.commande.execute([&] { session.MontreTouches(); });
        return true;
    }
    if (evenement.key() != Qt::Key_Delete || !surLeFilm()) return false;
    m_atelier.commande.execute([&] { session.SupprimeFilmAffiche(); });
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
