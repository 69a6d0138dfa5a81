#include "Platform/Controls/Popover.h"

#include "Platform/Controls/PopoverWindow.h"

#include <QAccessible>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>

#include <utility>

namespace platform {

namespace {

/// The view that shows an embedded window; null for one of the desktop's.
QGraphicsView* viewShowing(const QWidget& widget) {
    const QGraphicsProxyWidget* proxy = widget.graphicsProxyWidget();
    const auto views = proxy != nullptr ? proxy->scene()->views() : QList<QGraphicsView*>();
    return views.value(0);
}

/// What the widget lies in; null for a window of the desktop's.
QWidget* around(const QWidget& widget) {
    if (!widget.isWindow())
        return widget.parentWidget();
    const QGraphicsView* view = viewShowing(widget);
    return view != nullptr ? view->viewport() : nullptr;
}

/// A rectangle of the widget in that.
QRect mappedAround(const QWidget& widget, const QRect& rect) {
    const QGraphicsView* view = widget.isWindow() ? viewShowing(widget) : nullptr;
    if (view == nullptr)
        return rect.translated(widget.pos());
    return view->mapFromScene(widget.graphicsProxyWidget()->mapRectToScene(rect)).boundingRect();
}

} // namespace

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
    m_watching = std::make_unique<QObject>();
    connect(&view, &QObject::destroyed, m_watching.get(), [this] { close(); });
    for (QWidget* widget = m_view; widget != nullptr; widget = around(*widget)) {
        widget->installEventFilter(this);
        m_watched << widget;
        const QGraphicsView* scrolled = widget->isWindow() ? viewShowing(*widget) : nullptr;
        if (scrolled == nullptr)
            continue;
        for (const QScrollBar* bar : {scrolled->horizontalScrollBar(), scrolled->verticalScrollBar()})
            connect(bar, &QScrollBar::valueChanged, m_watching.get(), [this] { reposition(); });
    }
}

void Popover::ignore() {
    m_watching.reset();
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
    while (const QWidget* outer = around(*widget)) {
        rect = mappedAround(*widget, rect) & outer->rect();
        widget = outer;
    }
    return {widget->mapToGlobal(rect.topLeft()), rect.size()};
}

/// The window of the desktop that the view is in.
QWidget& Popover::outermost() const {
    QWidget* widget = m_view;
    while (QWidget* const outer = around(*widget))
        widget = outer;
    return *widget;
}

void Popover::reposition() {
    if (m_view == nullptr || m_window->content() == nullptr)
        return;
    const QRect anchor = visibleAnchor();
    QWidget& owner = outermost();
    const bool isSeen = m_view->isVisible() && !anchor.isEmpty() && !owner.isMinimized() &&
                        QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (!isSeen)
        return m_window->dismiss(false);
    const QSize size = m_contentSize.expandedTo(m_window->content()->minimumSizeHint());
    const QRect screen = owner.screen()->availableGeometry();
    m_window->setLayoutDirection(m_view->layoutDirection());
    m_window->present(PopoverPlacement::beside(anchor, size, m_preferredEdge, screen), owner, m_animates);
}

} // namespace platform
