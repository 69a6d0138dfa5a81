#include "Platform/Controls/PointerTracking.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace platform {

PointerTracking::PointerTracking(QWidget& control, std::function<void(End)> onEnd)
    : m_control(control), m_onEnd(std::move(onEnd)) {
    // Keys go to the widget with the focus, which need not be the control.
    qApp->installEventFilter(this);
}

PointerTracking::~PointerTracking() {
    interrupt();
}

bool PointerTracking::eventFilter(QObject* watched, QEvent* event) {
    if (!isActive())
        return false;
    const QEvent::Type type = event->type();
    if (type == QEvent::ShortcutOverride || type == QEvent::KeyPress) {
        if (static_cast<const QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        event->accept();
        if (type == QEvent::KeyPress)
            end(End::escaped);
        return true;
    }
    const bool isOwn = watched == &m_control;
    if (isOwn && (type == QEvent::Hide || (type == QEvent::EnabledChange && !m_control.isEnabled())))
        interrupt();
    if (type == QEvent::WindowBlocked && watched == m_control.window())
        interrupt();
    return false;
}

void PointerTracking::end(End end) {
    if (const auto onEnd = std::exchange(m_onEnd, nullptr)) {
        if (qApp != nullptr)
            qApp->removeEventFilter(this);
        onEnd(end);
    }
}

} // namespace platform
