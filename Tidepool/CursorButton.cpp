#include "Tidepool/CursorButton.h"

#include <QPixmap>

#include <utility>

namespace tidepool {

CursorButton::CursorButton(QWidget* parent) : CursorButton(std::make_unique<CursorButtonCell>(), parent) {}

CursorButton::CursorButton(std::unique_ptr<platform::ButtonCell> cell, QWidget* parent)
    : PushButton({}, std::move(cell), parent) {}

void CursorButton::setCursorImage(platform::Image image) {
    m_cursorImage = std::move(image);
    m_pointer.reset();
}

void CursorButton::setCursorHotSpot(QPointF hotSpot) {
    m_cursorHotSpot = hotSpot;
    m_pointer.reset();
}

const QCursor& CursorButton::pointer() {
    if (!m_pointer) {
        const QImage bitmap = m_cursorImage.bitmap(m_cursorImage.size(), devicePixelRatioF());
        const QPoint hotSpot = m_cursorHotSpot.toPoint();
        m_pointer = QCursor(QPixmap::fromImage(bitmap), hotSpot.x(), hotSpot.y());
    }
    return *m_pointer;
}

void CursorButton::enterEvent(QEnterEvent* event) {
    PushButton::enterEvent(event);
    if (!m_cursorImage.isNull())
        setCursor(pointer());
}

void CursorButton::leaveEvent(QEvent* event) {
    PushButton::leaveEvent(event);
    unsetCursor();
}

} // namespace tidepool
