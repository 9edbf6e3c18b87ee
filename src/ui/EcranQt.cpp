#include "ui/EcranQt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace ui {

namespace {

constexpr qint64 kEntreDeuxSouffles = 30;  // milliseconds

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

bool EcranQt::respire() {
    if (m_depuisSouffle.isValid() && m_depuisSouffle.elapsed() < kEntreDeuxSouffles) return continuer();
    m_liaison.ecrit();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    m_depuisSouffle.start();
    return continuer();
}

void EcranQt::rafraichit() {
    m_liaison.ecrit();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void EcranQt::patiente() {
    if (m_commandeEnCours && m_commandeEnCours()) rafraichit();
}

void EcranQt::debutTravail() {
    if (m_travaux++ > 0) return;
    m_arretDemande = false;
    emit travailCommence();
}

void EcranQt::finTravail() {
    if (--m_travaux > 0) return;
    m_arretDemande = false;
    m_depuisSouffle.invalidate();
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
