#include "ui/EcranQt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWidget>

namespace ui {

namespace {

constexpr std::chrono::milliseconds kEntreDeuxSouffles{30};

bool estUneSaisie(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool EcranQt::vientDeSouffler() const {
    return m_souffle && m_montre() - *m_souffle < kEntreDeuxSouffles;
}

bool EcranQt::respire() {
    if (vientDeSouffler()) return continuer();
    qApp->installEventFilter(this);
    laisseVivre(QEventLoop::AllEvents);
    qApp->removeEventFilter(this);
    m_souffle = m_montre();
    return continuer();
}

void EcranQt::rafraichit() {
    laisseVivre(QEventLoop::ExcludeUserInputEvents);
}

// What is painted may read the base, which asks for patience in its turn: that reading is short.
void EcranQt::patiente() {
    if (m_vit || vientDeSouffler() || !m_commandeEnCours || !m_commandeEnCours()) return;
    rafraichit();
}

void EcranQt::laisseVivre(QEventLoop::ProcessEventsFlags quoi) {
    const QScopedValueRollback vit(m_vit, true);
    m_liaison.ecrit();
    QCoreApplication::processEvents(quoi);
}

void EcranQt::debutTravail() {
    if (m_travaux++ > 0) return;
    m_arretDemande = false;
    emit travailCommence();
}

void EcranQt::finTravail() {
    if (--m_travaux > 0) return;
    m_arretDemande = false;
    m_souffle.reset();
    emit travailFini();
}

bool EcranQt::eventFilter(QObject* objet, QEvent* evenement) {
    if (!objet->isWidgetType() || !estUneSaisie(evenement->type())) return false;
    if (m_admis.contains(objet)) return false;
    const bool touche = evenement->type() == QEvent::KeyPress;
    if (touche && m_travaux > 0 && static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Escape) demandeArret();
    return true;
}

}  // namespace ui
