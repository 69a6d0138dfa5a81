#pragma once

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>

/// Keys by their code on every Xvfb.
enum class Key : std::uint8_t {
    escape = 9,
    tab = 23,
    q = 24,
    w = 25,
    enter = 36,
    control = 37,
    m = 58,
    down = 116,
    space = 65,
    f1 = 67,
    f10 = 76,
};

/// The screen as a person has it: real keys and a real pointer, and the windows that the window manager
/// lists.
class Desktop {
public:
    /// Waits until the window manager answers.
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    void press(Key key);
    void press(Key modifier, Key key);
    void movePointer(QPoint position);
    void pressPointer(QPoint position);
    void releasePointer(QPoint position);
    void click(QPoint position);
    void clickSecondary(QPoint position);
    void drag(QPoint from, QPoint to);

    QStringList windowTitles();

    /// The title of the window that has the keyboard.
    QString activeTitle();

    /// The title of the window that the one with this title belongs to and stays above; empty for none.
    QString ownerOf(const QString& title);

    /// True if the window manager offers what EWMH or another convention calls `feature`.
    bool offers(const char* feature);

    /// Where the window is on the screen, without its frame, in pixels.
    QRect placeOf(const QString& title);

    bool hasIcon(const QString& title);

    /// The time of the screen's server, in milliseconds.
    std::uint32_t time();

    /// What programs have told the desktop and asked it for since the last call: the contents of the
    /// messages.
    QByteArray messages();

    /// Asks the window manager to resize the window, as a person's tool would.
    void requestSize(std::uint32_t window, QSize size);

    /// Turns the event loop until `condition` holds; false after fifteen seconds.
    static bool waitUntil(const std::function<bool()>& condition);

    /// Turns the event loop.
    static void wait(int milliseconds);

private:
    void requestFrameExtents(std::uint32_t window);
    void send(std::uint8_t type, std::uint8_t detail, QPoint position = {});
    std::uint32_t atom(const char* name);
    QList<std::uint32_t> windows();
    std::uint32_t windowNamed(const QString& title);
    std::uint32_t windowIn(std::uint32_t window, const char* property);
    QString titleOf(std::uint32_t window);
    QByteArray property(std::uint32_t window, std::uint32_t name);

    xcb_connection_t* m_connection;
    std::uint32_t m_root;
};
