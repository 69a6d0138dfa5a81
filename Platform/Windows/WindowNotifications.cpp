#include "Platform/Windows/WindowNotifications.h"

#include <QApplication>
#include <QWindow>

namespace platform {

namespace {

QWidget* widgetOf(const QWindow* window) {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* widget : windows)
        if (widget->windowHandle() == window)
            return widget;
    return nullptr;
}

} // namespace

WindowNotifications& WindowNotifications::shared() {
    static auto* notifications = new WindowNotifications;
    return *notifications;
}

WindowNotifications::WindowNotifications() : QObject(qApp) {
    m_keyWindow = QApplication::activeWindow();
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &WindowNotifications::focusChanged);
}

void WindowNotifications::focusChanged(QWindow* focused) {
    if (focused != nullptr && (focused->type() == Qt::Popup || focused->type() == Qt::ToolTip))
        return;
    QWidget* const next = focused != nullptr ? widgetOf(focused) : nullptr;
    if (next == m_keyWindow)
        return;
    QWidget* const previous = m_keyWindow;
    m_keyWindow = next;
    if (previous != nullptr)
        Q_EMIT didResignKey(previous);
    if (next != nullptr)
        Q_EMIT didBecomeKey(next);
}

} // namespace platform
