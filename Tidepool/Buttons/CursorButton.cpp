#include "Tidepool/Buttons/CursorButton.h"

#include <QEvent>
#include <QPixmap>

#include <utility>

namespace tidepool {

CursorButton::CursorButton(QWidget* parent) : CursorButton(std::make_unique<CursorButtonCell>(), parent) {}

CursorButton::CursorButton(std::unique_ptr<platform::ButtonCell> cell, QWidget* parent)
    : PushButton({}, std::move(cell), parent) {}

void CursorButton::setCursorImage(platform::Image image) {
    m_cursorImage = std::move(image);
    refreshPointer();
}

void CursorButton::setCursorHotSpot(QPointF hotSpot) {
    m_cursorHotSpot = hotSpot;
    refreshPointer();
}

void CursorButton::pushPointer() {
    if (m_cursorImage.isNull())
        return;
    m_former = testAttribute(Qt::WA_SetCursor) ? std::optional(cursor()) : std::nullopt;
    const QImage bitmap = m_cursorImage.bitmap(m_cursorImage.size(), devicePixelRatioF());
    const QPoint hotSpot = m_cursorHotSpot.toPoint();
    m_pointer = QCursor(QPixmap::fromImage(bitmap), hotSpot.x(), hotSpot.y());
    setCursor(*m_pointer);
}

/// What somebody has set meanwhile stays.
void CursorButton::popPointer() {
    const auto pushed = std::exchange(m_pointer, std::nullopt);
    if (!pushed || cursor() != *pushed)
        return;
    m_former ? setCursor(*m_former) : unsetCursor();
}

/// For what has changed: the image, its place or the scale of the screen.
void CursorButton::refreshPointer() {
    if (!m_isPointerInside)
        return;
    popPointer();
    pushPointer();
}

bool CursorButton::event(QEvent* event) {
    if (event->type() == QEvent::ScreenChangeInternal)
        refreshPointer();
    return PushButton::event(event);
}

void CursorButton::enterEvent(QEnterEvent* event) {
    PushButton::enterEvent(event);
    m_isPointerInside = true;
    refreshPointer();
}

void CursorButton::leaveEvent(QEvent* event) {
    PushButton::leaveEvent(event);
    m_isPointerInside = false;
    popPointer();
}

} // namespace tidepool
