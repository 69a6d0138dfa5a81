#include "Platform/Core/Activation.h"

#include "Platform/Linux/X11.h"

#include <QByteArray>
#include <QWindow>

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

constexpr const char* waylandVariable = "XDG_ACTIVATION_TOKEN";

/// When the user asked for the start, in the server's milliseconds: "…_TIME<time>" ends a startup identifier.
xcb_timestamp_t userTime(const QByteArray& startupId) {
    const auto time = startupId.lastIndexOf("_TIME");
    return time < 0 ? XCB_CURRENT_TIME : startupId.mid(time + 5).toUInt();
}

void askForFocus(xcb_connection_t* connection, xcb_window_t window, xcb_timestamp_t time) {
    constexpr uint32_t fromApplication = 1;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = x11::atom(connection, "_NET_ACTIVE_WINDOW");
    message.data.data32[0] = fromApplication;
    message.data.data32[1] = time;
    x11::sendToWindowManager(connection, message);
}

/// Ends the launcher's busy cursor: the startup notification protocol, version 0.1, sends a text in pieces of
/// 20 bytes to all.
void endStartup(xcb_connection_t* connection, xcb_window_t window, const QByteArray& startupId) {
    QByteArray escaped = startupId;
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    const QByteArray text = "remove: ID=\"" + escaped + '"';
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = window;
    message.type = x11::atom(connection, "_NET_STARTUP_INFO_BEGIN");
    constexpr auto piece = static_cast<qsizetype>(sizeof message.data.data8);
    // With the zero that ends the text.
    for (qsizetype at = 0; at <= text.size(); at += piece) {
        std::memset(message.data.data8, 0, piece);
        std::memcpy(message.data.data8, text.constData() + at,
                    static_cast<std::size_t>(std::min(piece, text.size() - at)));
        xcb_send_event(connection, 0, x11::rootWindow(connection), XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = x11::atom(connection, "_NET_STARTUP_INFO");
    }
    xcb_flush(connection);
}

} // namespace

ActivationToken ActivationToken::fromEnvironment() {
    return {qEnvironmentVariable(waylandVariable), qEnvironmentVariable("DESKTOP_STARTUP_ID")};
}

void activate(QWindow& window, const ActivationToken& token) {
    window.raise();
    auto* const connection = x11::connection();
    if (connection == nullptr && !token.wayland.isEmpty())
        qputenv(waylandVariable, token.wayland.toLocal8Bit()); // where Qt looks for it
    if (connection == nullptr || token.x11.isEmpty()) {
        window.requestActivate();
        return;
    }
    const auto id = static_cast<xcb_window_t>(window.winId());
    const QByteArray startupId = token.x11.toLocal8Bit();
    askForFocus(connection, id, userTime(startupId));
    endStartup(connection, id, startupId);
}

} // namespace platform
