#include "Platform/Controls/Popover.h"

#include "Platform/Controls/PopoverWindow.h"

#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace platform {

Popover::Popover(QObject* parent) : QObject(parent), m_window(std::make_unique<PopoverWindow>()) {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &Popover::reposition);
}

Popover::~Popover() {
    ignore();
}

void Popover::setContentView(QWidget* view) {
    m_window->setContent(view);
}

void Popover::setContentSize(QSize size) {
    m_contentSize = size;
    reposition();
}

void Popover::setColors(const QColor& background, const QColor& edge) {
    m_window->setColors(background, edge);
}

void Popover::setAccessibleText(const QString& text) {
    m_window->setAccessibleName(text);
}

void Popover::show(const QRect& rect, QWidget& view, RectEdge preferredEdge) {
    m_rect = rect;
    m_preferredEdge = preferredEdge;
    m_isShown = true;
    watch(view);
    reposition();
    QAccessibleEvent appeared(m_window.get(), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appeared);
    QAccessibleEvent alert(m_window.get(), QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Popover::close() {
    if (!std::exchange(m_isShown, false))
        return;
    ignore();
    m_view = nullptr;
    m_window->dismiss(m_animates);
    Q_EMIT closed();
}

/// Follows the view and what it lies in.
void Popover::watch(QWidget& view) {
    ignore();
    m_view = &view;
    m_viewsEnd = connect(&view, &QObject::destroyed, this, &Popover::close);
    for (QWidget* widget = m_view; widget != nullptr; widget = widget->parentWidget()) {
        widget->installEventFilter(this);
        m_watched << widget;
        if (widget->isWindow())
            break;
    }
}

void Popover::ignore() {
    QObject::disconnect(m_viewsEnd);
    for (const QPointer<QWidget>& widget : std::exchange(m_watched, {}))
        if (widget)
            widget->removeEventFilter(this);
}

bool Popover::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Hide:
        if (!m_view->isVisible())
            close();
        break;
    case QEvent::ParentChange:
        watch(*m_view);
        reposition();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::WindowStateChange:
        reposition();
        break;
    default:
        break;
    }
    return false;
}

/// What of the view's part is not cut off by what it lies in, on the screen.
QRect Popover::visibleAnchor() const {
    QRect rect = m_rect.isEmpty() ? m_view->rect() : m_rect;
    const QWidget* widget = m_view;
    for (; !widget->isWindow() && widget->parentWidget() != nullptr; widget = widget->parentWidget())
        rect = rect.translated(widget->pos()) & widget->parentWidget()->rect();
    return {widget->mapToGlobal(rect.topLeft()), rect.size()};
}

void Popover::reposition() {
    if (m_view == nullptr || m_window->content() == nullptr)
        return;
    const QRect anchor = visibleAnchor();
    const bool isSeen = m_view->isVisible() && !anchor.isEmpty() && !m_view->window()->isMinimized() &&
                        QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (!isSeen)
        return m_window->dismiss(false);
    const QSize size = m_contentSize.expandedTo(m_window->content()->minimumSizeHint());
    const QRect screen = m_view->screen()->availableGeometry();
    m_window->present(PopoverPlacement::beside(anchor, size, m_preferredEdge, screen), *m_view, m_animates);
}

} // namespace platform
