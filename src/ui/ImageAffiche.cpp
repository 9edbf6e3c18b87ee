#include "ui/ImageAffiche.h"

#include "ui/Couleurs.h"
#include "ui/Lecteur.h"
#include "ui/Traits.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <utility>

namespace ui {

int codeWindows(const QKeyEvent& evenement) {
    if (evenement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
    static constexpr std::pair<int, int> kCodes[] = {
        {Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},  {Qt::Key_Home, 36},
        {Qt::Key_Left, 37},   {Qt::Key_Up, 38},     {Qt::Key_Right, 39},    {Qt::Key_Down, 40}, {Qt::Key_F1, 112}};
    for (const auto& [touche, code] : kCodes)
        if (evenement.key() == touche) return code;
    return 0;
}

ImageAffiche::ImageAffiche(ImagesQt& images, QWidget* parent) : QWidget(parent), m_images(images) {
    setFocusPolicy(Qt::TabFocus);  // a drag leaves the arrows to the scroll bar
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    seLit(this, {.role = QAccessible::Graphic, .presse = [this] { emit cliquee(); }});
}

void ImageAffiche::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(this);
    const QPixmap& entiere = m_images.entiere();
    if (entiere.isNull()) return peintre.fillRect(evenement->rect(), palette().window());
    peintre.setClipRect(evenement->rect());
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    peintre.drawPixmap(rect(), entiere);
    if (hasFocus()) peintContourDeFocus(peintre, rect(), accentLisible(palette()));
}

void ImageAffiche::mousePressEvent(QMouseEvent* evenement) {
    if (evenement->button() != Qt::LeftButton) return evenement->ignore();
    m_prise = m_derniere = evenement->globalPosition().toPoint();
    m_glisse = false;
}

void ImageAffiche::mouseMoveEvent(QMouseEvent* evenement) {
    const QPoint ici = evenement->globalPosition().toPoint();
    if (!(evenement->buttons() & Qt::LeftButton)) return;
    if (!m_glisse && (ici - m_prise).manhattanLength() < QApplication::startDragDistance()) return;
    m_glisse = true;
    setCursor(Qt::ClosedHandCursor);
    emit glissee(ici - std::exchange(m_derniere, ici));
}

void ImageAffiche::mouseReleaseEvent(QMouseEvent* evenement) {
    if (evenement->button() != Qt::LeftButton) return evenement->ignore();
    setCursor(Qt::PointingHandCursor);
    if (!std::exchange(m_glisse, false) && rect().contains(evenement->pos())) emit cliquee();
}

void ImageAffiche::keyPressEvent(QKeyEvent* evenement) {
    const int code = codeWindows(*evenement);
    if (code >= 33)
        emit touche(code);
    else
        QWidget::keyPressEvent(evenement);
}

BarreAffiche::BarreAffiche(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setRange(0, 100);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void BarreAffiche::metUtile(bool aDefiler) {
    m_utile = aDefiler;
    update();
}

void BarreAffiche::paintEvent(QPaintEvent* evenement) {
    if (m_utile || hasFocus()) QScrollBar::paintEvent(evenement);
}

void BarreAffiche::keyPressEvent(QKeyEvent* evenement) {
    const int code = codeWindows(*evenement);
    if (code == 33 || code == 34)
        emit touche(code);
    else if (code == 37 || code == 39)  // Qt turns them around on its scroll bars
        triggerAction(code == 37 ? SliderSingleStepSub : SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(evenement);
}

void BarreAffiche::wheelEvent(QWheelEvent* evenement) {
    evenement->ignore();
}

}  // namespace ui
