#include "ui/EtoilesNote.h"

#include "ui/Couleurs.h"
#include "ui/Traits.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace ui {

namespace {

constexpr int kNombre = 10;
constexpr int kCoteVoulu = 22, kCoteMin = 16, kCoteMax = 24;  // logical pixels, of one star's place

QPainterPath etoile(const QPointF& centre, double rayon) {
    constexpr double kCreux = 0.44;
    QPainterPath trace;
    for (int i = 0; i < 10; ++i) {
        const double angle = std::numbers::pi * (i / 5.0 - 0.5), r = i % 2 ? rayon * kCreux : rayon;
        const QPointF point = centre + QPointF(std::cos(angle) * r, std::sin(angle) * r);
        i == 0 ? trace.moveTo(point) : trace.lineTo(point);
    }
    trace.closeSubpath();
    return trace;
}

// To screen readers a slider from 0 to 10.
class EtoilesLues final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit EtoilesLues(EtoilesNote* etoiles) : QAccessibleWidget(etoiles, QAccessible::Slider), m_etoiles(etoiles) {}

    void* interface_cast(QAccessible::InterfaceType genre) override {
        if (genre == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(genre);
    }
    QString text(QAccessible::Text quoi) const override {
        return quoi == QAccessible::Value ? m_etoiles->texte() : QAccessibleWidget::text(quoi);
    }
    QVariant currentValue() const override { return m_etoiles->montree(); }
    void setCurrentValue(const QVariant& valeur) override {
        emit m_etoiles->noteChoisie(std::clamp(valeur.toInt(), 0, kNombre));
    }
    QVariant maximumValue() const override { return kNombre; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

  private:
    EtoilesNote* m_etoiles;
};

QAccessibleInterface* fabrique(const QString& classe, QObject* objet) {
    auto* etoiles = classe == QLatin1String("ui::EtoilesNote") ? qobject_cast<EtoilesNote*>(objet) : nullptr;
    return etoiles ? new EtoilesLues(etoiles) : nullptr;
}

}  // namespace

class EtoilesNote::LienNote final : public Lien {
  public:
    LienNote(const double& etat, EtoilesNote& etoiles) : m_etat(etat), m_etoiles(etoiles) {}

    void ecrit() override {
        if (m_etat == m_etoiles.m_note) return;
        m_etoiles.m_note = m_etat;
        m_etoiles.m_proposee.reset();
        m_etoiles.annonce();
    }

  private:
    const double& m_etat;
    EtoilesNote& m_etoiles;
};

EtoilesNote::EtoilesNote(QWidget* parent) : QWidget(parent) {
    static const bool installee = (QAccessible::installFactory(fabrique), true);
    Q_UNUSED(installee);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

std::unique_ptr<Lien> EtoilesNote::lien(const double& note) {
    return std::make_unique<LienNote>(note, *this);
}

QSize EtoilesNote::sizeHint() const {
    return {kNombre * kCoteVoulu, kCoteVoulu + 4};
}

QSize EtoilesNote::minimumSizeHint() const {
    return {kNombre * kCoteMin, kCoteVoulu + 4};
}

double EtoilesNote::cote() const {
    return std::clamp(static_cast<double>(width()) / kNombre, double{kCoteMin}, double{kCoteMax});
}

int EtoilesNote::etoileSous(const QPointF& endroit) const {
    if (!QRectF(rect()).contains(endroit)) return 0;
    const int rang = static_cast<int>(endroit.x() / cote()) + 1;
    return rang <= kNombre ? rang : 0;
}

double EtoilesNote::montree() const {
    if (m_survol > 0) return m_survol;
    return m_proposee ? *m_proposee : m_note;
}

QString EtoilesNote::texte() const {
    const double note = m_proposee ? *m_proposee : m_note;
    return note == 0 ? tr("Pas de notation") : tr("%1 sur 10").arg(QLocale().toString(note, 'g', 3));
}

void EtoilesNote::annonce() {
    update();
    QAccessibleValueChangeEvent evenement(this, montree());
    QAccessible::updateAccessibility(&evenement);
}

void EtoilesNote::propose(std::optional<int> note) {
    if (std::exchange(m_proposee, note) != note) annonce();
}

void EtoilesNote::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const double place = cote(), rayon = place * 0.42;
    const bool essai = m_survol > 0 || m_proposee;
    const QColor pleine = accentLisible(palette());
    const QColor vide = melange(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.38);
    for (int i = 0; i < kNombre; ++i) {
        const QPointF centre(place * (i + 0.5), height() / 2.0 + rayon * 0.06);
        const QPainterPath trace = etoile(centre, rayon);
        const double part = std::clamp(montree() - i, 0.0, 1.0);
        peintre.setPen(QPen(part > 0 ? pleine : vide, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        peintre.setBrush(Qt::NoBrush);
        peintre.drawPath(trace);
        if (part <= 0) continue;
        peintre.save();
        peintre.setClipRect(QRectF(centre.x() - rayon, 0, 2 * rayon * part, height()));
        peintre.fillPath(trace, essai ? melange(pleine, palette().color(QPalette::Window), 0.7) : pleine);
        peintre.restore();
    }
    const QRectF contour(-1, 0, std::min<double>(width(), place * kNombre + 1), height());
    if (hasFocus()) peintContourDeFocus(peintre, contour.adjusted(1, 0, 0, 0), pleine);
}

void EtoilesNote::mouseMoveEvent(QMouseEvent* evenement) {
    const int sous = etoileSous(evenement->position());
    if (std::exchange(m_survol, sous) == sous) return;
    setToolTip(sous > 0 ? tr("%1 sur 10").arg(sous) : QString());
    update();
}

void EtoilesNote::leaveEvent(QEvent*) {
    m_survol = 0;
    update();
}

void EtoilesNote::mousePressEvent(QMouseEvent* evenement) {
    m_pressee = evenement->button() == Qt::LeftButton ? etoileSous(evenement->position()) : 0;
}

// The second click of a double click would take away what the first one gave.
void EtoilesNote::mouseDoubleClickEvent(QMouseEvent*) {
    m_pressee = 0;
}

void EtoilesNote::mouseReleaseEvent(QMouseEvent* evenement) {
    const int pressee = std::exchange(m_pressee, 0);
    if (pressee == 0 || etoileSous(evenement->position()) != pressee) return;
    m_survol = 0;  // the stars show what comes of the click
    emit etoileCliquee(pressee);
}

void EtoilesNote::keyPressEvent(QKeyEvent* evenement) {
    const int depuis = m_proposee.value_or(static_cast<int>(std::lround(m_note)));
    const auto pas = [&](int voulu) { propose(std::clamp(voulu, 0, kNombre)); };
    if (evenement->modifiers() & ~Qt::KeypadModifier) return QWidget::keyPressEvent(evenement);
    switch (evenement->key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
            return pas(depuis - 1);
        case Qt::Key_Right:
        case Qt::Key_Up:
            return pas(depuis + 1);
        case Qt::Key_Home:
            return pas(0);
        case Qt::Key_End:
            return pas(kNombre);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (const auto note = std::exchange(m_proposee, std::nullopt)) emit noteChoisie(*note);
            return update();
        case Qt::Key_Escape:
            if (m_proposee) return propose(std::nullopt);
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(evenement);
}

void EtoilesNote::focusOutEvent(QFocusEvent* evenement) {
    propose(std::nullopt);
    QWidget::focusOutEvent(evenement);
}

}  // namespace ui
