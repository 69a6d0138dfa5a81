#include "Platform/Controls/PointerTracking.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace platform {

PointerTracking::PointerTracking(QWidget& control, std::function<void(End)> onEnd)
    : m_control(control),
      m_isPointer(QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)),
      m_onEnd(std::move(onEnd)) {
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
    const bool isLost = type == QEvent::Hide || (type == QEvent::EnabledChange && !m_control.isEnabled());
    const bool isBlocked = type == QEvent::WindowBlocked && watched == m_control.window();
    if (!isBlocked && !(isLost && watched == &m_control) && !isTakenBy(*watched, *event))
        return false;
    const QPointer<QObject> receiver(watched);
    interrupt(); // which may destroy the control, and this with it
    return receiver == nullptr;
}

/// Whoever takes the pointer gets the release. Some tell nobody: then the pointer is seen without its button,
/// or pressed again.
bool PointerTracking::isTakenBy(const QObject& watched, const QEvent& event) const {
    switch (event.type()) {
    case QEvent::Show: {
        const auto* const widget = qobject_cast<const QWidget*>(&watched);
        return widget != nullptr && widget->windowType() == Qt::Popup;
    }
    case QEvent::DragEnter:
        return true;
    case QEvent::MouseMove:
        return m_isPointer && !static_cast<const QMouseEvent&>(event).buttons().testFlag(Qt::LeftButton);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return m_isPointer && (watched.isWindowType() || &watched == &m_control) &&
               static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    default:
        return false;
    }
}

void PointerTracking::end(End end) {
    if (const auto onEnd = std::exchange(m_onEnd, nullptr)) {
        if (qApp != nullptr)
            qApp->removeEventFilter(this);
        onEnd(end);
    }
}

} // namespace platform
