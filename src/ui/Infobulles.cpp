#include "ui/Infobulles.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QToolTip>

namespace ui {

QString enInfobulle(const QString& texte) {
    constexpr qsizetype kLuAuPassage = 4000;  // characters; laying out megabytes would hold the window
    return Qt::convertFromPlainText(texte.left(kLuAuPassage), Qt::WhiteSpaceNormal);
}

InfobulleEntiere::InfobulleEntiere(QLineEdit* zone) : QObject(zone), m_zone(zone) {
    zone->installEventFilter(this);
}

bool InfobulleEntiere::eventFilter(QObject*, QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip) return false;
    constexpr int kMargesDuTexte = 12;
    const QString texte = m_zone->text();
    if (m_zone->fontMetrics().horizontalAdvance(texte) <= m_zone->width() - kMargesDuTexte) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), enInfobulle(texte), m_zone);
    return true;
}

}  // namespace ui
