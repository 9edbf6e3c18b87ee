#include "ui/BoutonPuce.h"

#include "ui/Couleurs.h"
#include "ui/Etiquettes.h"
#include "ui/Infobulles.h"
#include "ui/Traits.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace ui {

namespace {

constexpr double kGrandeur = 0.95;
constexpr int kBord = 11, kPoint = 8, kApresPoint = 7;  // logical pixels
constexpr int kLettresGardees = 8;

// Where the last part of the text begins, 0 for a text of one part.
qsizetype dernierePartie(const QString& texte) {
    return std::max(
        {qsizetype{0}, texte.lastIndexOf(QStringLiteral(" · ")), texte.lastIndexOf(QLatin1String(" depuis le "))});
}

// Whole parts go first, the last before the others.
QString tientDans(QString texte, int place, const QFontMetrics& mesure) {
    const QString points(QChar(0x2026));
    QString montre = texte;
    while (mesure.horizontalAdvance(montre) > place) {
        const qsizetype partie = dernierePartie(texte);
        if (partie == 0) return mesure.elidedText(montre, Qt::ElideRight, place);
        texte.truncate(partie);
        montre = texte + points;
    }
    return montre;
}

}  // namespace

BoutonPuce::BoutonPuce(Genre genre, QWidget* parent) : QAbstractButton(parent), m_genre(genre) {
    setFont(policeRelative(kGrandeur));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

int BoutonPuce::retrait() const {
    return m_genre == Genre::Etat ? kBord + kPoint + kApresPoint : kBord;
}

QString BoutonPuce::texteMontre() const {
    return text().replace(QLatin1String("&&"), QLatin1String("&"));
}

QSize BoutonPuce::sizeHint() const {
    const QFontMetrics mesure(policeRelative(kGrandeur));
    return {retrait() + mesure.horizontalAdvance(texteMontre()) + kBord + 1, mesure.height() + 10};
}

QSize BoutonPuce::minimumSizeHint() const {
    return {std::min(sizeHint().width(), retrait() + kBord + fontMetrics().averageCharWidth() * kLettresGardees),
            sizeHint().height()};
}

BoutonPuce::Habit BoutonPuce::habit() const {
    const QPalette p = palette();
    const bool survol = underMouse() || isDown();
    if (m_genre == Genre::Appel)
        return {survol ? accentSurvole(p) : accent(p), {}, p.color(QPalette::Active, QPalette::HighlightedText)};
    const QColor fond = melange(p.color(QPalette::WindowText), p.color(QPalette::Window), survol ? 0.14 : 0.07);
    const QColor bord = m_genre == Genre::Annonce ? accentLisible(p) : filet(p);
    return {fond, bord, lisible(p.color(QPalette::WindowText), {fond})};
}

void BoutonPuce::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const Habit mis = habit();
    const QRectF zone = rect();
    peintSurface(peintre, zone, mis.fond, mis.bord, zone.height() / 2);
    if (m_genre == Genre::Etat) {
        const QRectF point(kBord, (zone.height() - kPoint) / 2, kPoint, kPoint);
        const QColor couleur = font().bold() ? accentLisible(palette()) : texteDiscret(palette());
        peintre.setPen(QPen(couleur, 1.5));
        peintre.setBrush(font().bold() ? QBrush(couleur) : QBrush(Qt::NoBrush));
        peintre.drawEllipse(point.adjusted(0.75, 0.75, -0.75, -0.75));
    }
    peintre.setPen(mis.encre);
    peintre.setFont(policeRelative(kGrandeur));
    const QRect place = rect().adjusted(retrait(), 0, -kBord, 0);
    const QFontMetrics mesure(peintre.font());
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, tientDans(texteMontre(), place.width() + 1, mesure));
    if (hasFocus()) {
        const QColor contour = m_genre == Genre::Appel ? mis.encre : accentLisible(palette());
        peintContourDeFocus(peintre, m_genre == Genre::Appel ? zone.adjusted(2, 2, -2, -2) : zone, contour,
                            zone.height() / 2);
    }
}

bool BoutonPuce::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip || width() >= sizeHint().width()) return QAbstractButton::event(evenement);
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(),
                       enInfobulle(texteMontre() + QLatin1Char('\n') + toolTip()), this);
    return true;
}

void BoutonPuce::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Return && evenement->key() != Qt::Key_Enter)
        return QAbstractButton::keyPressEvent(evenement);
    click();
}

}  // namespace ui
