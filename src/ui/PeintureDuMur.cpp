#include "ui/Couleurs.h"
#include "ui/DessinDeTuile.h"
#include "ui/PlaceDuMur.h"

#include <QPaintEvent>
#include <QPainter>

namespace ui {

void MurDAffiches::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(viewport());
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect zone = evenement->rect().adjusted(0, -kAuBord, 0, kAuBord);
    m_plan.parcours(
        zone.top() + verticalOffset(), zone.bottom() + 1 + verticalOffset(),
        [&](std::size_t section) { peintEntete(peintre, section); }, [&](int tuile) { peintTuile(peintre, tuile); });
}

void MurDAffiches::peintEntete(QPainter& peintre, std::size_t section) {
    const QRect place = rectDuMur(m_plan.placeDeLEntete(section), verticalOffset());
    const Entete& voulue = entete(section);
    const QFont police = policeDEntete(font());
    const QFontMetrics mesure(police);
    const QString titre = mesure.elidedText(voulue.titre, Qt::ElideRight, place.width());
    peintre.setFont(police);
    peintre.setPen(palette().color(QPalette::WindowText));
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, titre);
    const int apres = mesure.horizontalAdvance(titre) + kEspaceDuMur;
    const int ligne = place.y() + (place.height() - mesure.height()) / 2 + mesure.ascent();
    peintre.setFont(font());
    peintre.setPen(texteDiscret(palette()));
    peintre.drawText(QPoint(place.x() + apres, ligne),
                     fontMetrics().elidedText(voulue.precision, Qt::ElideRight, place.width() - apres));
}

void MurDAffiches::peintTuile(QPainter& peintre, int tuile) const {
    const QRect entiere = rectDuMur(m_plan.place(tuile), verticalOffset());
    TuileDessinee dessinee;
    dessinee.titre = titre(tuile);
    dessinee.marques = marques(tuile);
    if (const Legende* connue = legende(tuile)) {
        dessinee.image = m_chargeur.affiche(connue->film);
        dessinee.realisateur = connue->realisateur, dessinee.annee = connue->annee;
    }
    dessinee.courante = hasFocus() && currentIndex().row() == tuile;
    dessinee.survolee = viewport()->underMouse() && entiere.contains(viewport()->mapFromGlobal(QCursor::pos()));
    dessineTuile(peintre, entiere, dessinee, *this);
}

}  // namespace ui
