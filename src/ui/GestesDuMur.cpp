#include "ui/ModeleMur.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <array>
#include <utility>

// Keys and mouse on the wall.
namespace ui {

namespace {

constexpr qint64 kEntreDeuxLettres = 1500;

}  // namespace

QModelIndex MurDAffiches::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    using enum ensemble::PlanDuMur::Pas;
    static constexpr std::array kPas{std::pair(MoveUp, Haut),         std::pair(MoveDown, Bas),
                                     std::pair(MoveLeft, Gauche),     std::pair(MoveRight, Droite),
                                     std::pair(MoveHome, Debut),      std::pair(MoveEnd, Fin),
                                     std::pair(MovePageUp, PageHaut), std::pair(MovePageDown, PageBas),
                                     std::pair(MoveNext, Droite),     std::pair(MovePrevious, Gauche)};
    const auto* pas = std::find_if(kPas.begin(), kPas.end(), [&](const auto& p) { return p.first == action; });
    const int la = m_plan.deplace(currentIndex().row(), pas->second, viewport()->height());
    return la < 0 ? QModelIndex() : m_modele->index(la, 0);
}

void MurDAffiches::currentChanged(const QModelIndex& courant, const QModelIndex& precedent) {
    QAbstractItemView::currentChanged(courant, precedent);
    for (const QModelIndex& index : {courant, precedent})
        viewport()->update(visualRect(index).adjusted(-kAuBord, -kAuBord, kAuBord, kAuBord));
    if (!courant.isValid() || !hasFocus() || !QAccessible::isActive()) return;
    QAccessibleEvent evenement(this, QAccessible::Focus);
    evenement.setChild(courant.row());
    QAccessible::updateAccessibility(&evenement);
}

bool MurDAffiches::frappeEnCours() const {
    return !m_frappe.isEmpty() && m_depuisLaFrappe.isValid() && m_depuisLaFrappe.elapsed() < kEntreDeuxLettres;
}

// As in the title list: the same letter again goes from one title to the next.
void MurDAffiches::keyboardSearch(const QString& texte) {
    if (!frappeEnCours()) m_frappe.clear();
    if (m_frappe.isEmpty() && texte.trimmed().isEmpty()) return;
    m_frappe += texte.toCaseFolded();
    m_depuisLaFrappe.start();
    if (!estDeLArbre()) return;
    const bool memeLettre = m_frappe.count(m_frappe.left(1)) == m_frappe.size();
    const QString frappe = memeLettre ? m_frappe.left(1) : m_frappe;
    const int depuis = currentIndex().row() + (frappe.size() == 1 ? 1 : 0);
    const int trouvee = ensemble::tuileQuiCommencePar(m_mur, arbre(), frappe.toStdString(), depuis);
    if (trouvee < 0) return;
    setCurrentIndex(m_modele->index(trouvee, 0));
    scrollTo(currentIndex());
}

void MurDAffiches::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        if (currentIndex().isValid()) emit choisie(currentIndex().row());
        return;
    }
    if (touche == Qt::Key_Space && !(evenement->modifiers() & ~Qt::ShiftModifier)) {
        if (frappeEnCours())
            keyboardSearch(QStringLiteral(" "));
        else if (currentIndex().isValid())
            emit choisie(currentIndex().row());
        return;
    }
    const QModelIndex avant = currentIndex();
    QAbstractItemView::keyPressEvent(evenement);
    if (currentIndex() == avant) return;
    if (evenement->text().isEmpty() || !evenement->text().front().isPrint()) m_frappe.clear();
    scrollTo(currentIndex());
}

void MurDAffiches::wheelEvent(QWheelEvent* evenement) {
    if (!(evenement->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(evenement);
    if (const int cran = evenement->angleDelta().y(); cran != 0)
        changeTaille(cran > 0 ? 1 : -1, evenement->position().toPoint());
    evenement->accept();
}

void MurDAffiches::mousePressEvent(QMouseEvent* evenement) {
    const QModelIndex index = indexAt(evenement->position().toPoint());
    m_pressee = index.row();
    if (index.isValid()) setCurrentIndex(index);
}

void MurDAffiches::mouseMoveEvent(QMouseEvent* evenement) {
    viewport()->setCursor(indexAt(evenement->position().toPoint()).isValid() ? Qt::PointingHandCursor
                                                                             : Qt::ArrowCursor);
}

void MurDAffiches::mouseReleaseEvent(QMouseEvent* evenement) {
    const int tuile = indexAt(evenement->position().toPoint()).row();
    if (tuile < 0 || std::exchange(m_pressee, -1) != tuile) return;
    if (evenement->button() == Qt::LeftButton) emit choisie(tuile);
    if (evenement->button() == Qt::RightButton) emit menuDemande(tuile, evenement->globalPosition().toPoint());
}

// The mouse asks for its menu when it is released; only the keyboard does it here.
void MurDAffiches::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    if (evenement->reason() == QContextMenuEvent::Mouse || !currentIndex().isValid()) return;
    scrollTo(currentIndex());
    emit menuDemande(currentIndex().row(), viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}

}  // namespace ui
