#include "Platform/Controls/ClickGestureRecognizer.h"

#include <QMouseEvent>
#include <QWidget>

#include <utility>

namespace platform {

ClickGestureRecognizer::ClickGestureRecognizer(QWidget& view, std::function<void()> onClick)
    : m_view(view), m_onClick(std::move(onClick)) {
    view.installEventFilter(this);
}

bool ClickGestureRecognizer::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (type == QEvent::Hide || type == QEvent::EnabledChange)
        m_pressed = false;
    if (!isPress && type != QEvent::MouseButtonRelease)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (mouse.button() != Qt::LeftButton || !m_view.isEnabled())
        return false;
    const bool wasPressed = std::exchange(m_pressed, isPress);
    if (!isPress && wasPressed && m_view.rect().contains(mouse.position().toPoint()))
        m_onClick();
    return false;
}

} // namespace platform
