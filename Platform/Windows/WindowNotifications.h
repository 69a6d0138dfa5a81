#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace platform {

/// Tells which window has the keyboard. Menus and tool tips leave it with the window that they belong to.
/// Main thread.
class WindowNotifications : public QObject {
    Q_OBJECT

public:
    /// Made on first use, which must come after the `QApplication`.
    static WindowNotifications& shared();

    /// Null while another application has the keyboard.
    QWidget* keyWindow() const { return m_keyWindow; }

Q_SIGNALS:
    void didBecomeKey(QWidget* window);
    void didResignKey(QWidget* window);

private:
    WindowNotifications();
    void focusChanged(QWindow* focused);

    QPointer<QWidget> m_keyWindow;
};

} // namespace platform
