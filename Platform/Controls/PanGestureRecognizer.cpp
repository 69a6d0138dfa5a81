#include "Platform/Controls/PanGestureRecognizer.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace platform {

PanGestureRecognizer::PanGestureRecognizer(QWidget& view, Handlers handlers)
    : m_view(view), m_handlers(std::move(handlers)) {
    view.installEventFilter(this);
}

PanGestureRecognizer::~PanGestureRecognizer() = default;

bool PanGestureRecognizer::begin(const QMouseEvent& press) {
    if (!m_view.isEnabled())
        return false;
    const QPointer<QObject> self(this);
    const auto handler = m_handlers.begin; // which may destroy the view, and this with it
    const bool begins = handler(press);
    if (!self || !begins)
        return !self;
    m_last = press.position();
    m_tracking = std::make_unique<PointerTracking>(m_view, m_handlers.end);
    return true;
}

void PanGestureRecognizer::move(const QMouseEvent& to) {
    const QPointF from = std::exchange(m_last, to.position());
    const auto handler = m_handlers.move;
    handler(to, from);
}

bool PanGestureRecognizer::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    const auto isLeft = [&] { return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton; };
    if (type == QEvent::MouseButtonPress && isLeft())
        return begin(*static_cast<QMouseEvent*>(event));
    if (!isActive())
        return false;
    if (type == QEvent::MouseMove)
        move(*static_cast<QMouseEvent*>(event));
    else if (type == QEvent::MouseButtonRelease && isLeft())
        m_tracking->release();
    else
        return false;
    return true;
}

} // namespace platform
