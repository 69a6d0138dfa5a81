#include "Platform/Controls/ClickGestureRecognizer.h"

#include "Platform/Controls/PointerTracking.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace platform {

ClickGestureRecognizer::ClickGestureRecognizer(QWidget& view, std::function<void()> onClick,
                                               std::function<void(bool)> onPress)
    : m_view(view), m_onClick(std::move(onClick)), m_onPress(std::move(onPress)) {
    view.installEventFilter(this);
}

ClickGestureRecognizer::~ClickGestureRecognizer() = default;

void ClickGestureRecognizer::begin() {
    m_press = std::make_unique<PointerTracking>(m_view, [this](PointerTracking::End) {
        if (m_onPress)
            m_onPress(false);
    });
    if (m_onPress)
        m_onPress(true);
}

/// True if the click has destroyed the view, which then must not get the event.
bool ClickGestureRecognizer::release(bool isInside) {
    if (!m_press || !m_press->isActive())
        return false;
    m_press->release();
    if (!isInside)
        return false;
    const QPointer<QWidget> view(&m_view);
    const auto onClick = m_onClick;
    onClick();
    return view == nullptr;
}

bool ClickGestureRecognizer::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!isPress && type != QEvent::MouseButtonRelease)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (mouse.button() != Qt::LeftButton || !m_view.isEnabled())
        return false;
    if (!isPress)
        return release(m_view.rect().contains(mouse.position().toPoint()));
    begin();
    return false;
}

} // namespace platform
