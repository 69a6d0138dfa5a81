#include "Platform/Core/WindowSystem.h"

#include "Platform/Linux/X11.h"

#include <QGuiApplication>
#include <QPoint>
#include <QScreen>
#include <QWindow>

namespace platform {

namespace {

using x11::atom;
using x11::Reply;

/// True if the window manager lists `feature` among what it supports.
bool isSupported(xcb_connection_t* connection, xcb_atom_t feature) {
    const auto cookie = xcb_get_property(connection, 0, x11::rootWindow(connection),
                                         atom(connection, "_NET_SUPPORTED"), XCB_ATOM_ATOM, 0, 1024);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr),
                                                &std::free);
    if (!reply)
        return false;
    const auto* const atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    const int count = xcb_get_property_value_length(reply.get()) / static_cast<int>(sizeof(xcb_atom_t));
    for (int i = 0; i < count; ++i)
        if (atoms[i] == feature)
            return true;
    return false;
}

} // namespace

bool isCompositing() {
    auto* const connection = x11::connection();
    if (connection == nullptr)
        return QGuiApplication::platformName() == QLatin1StringView("wayland");
    // EWMH: the compositor of screen 0 owns this selection.
    const auto cookie = xcb_get_selection_owner(connection, atom(connection, "_NET_WM_CM_S0"));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool showSystemMenu(QWindow& window, const QPoint& position) {
    auto* const connection = x11::connection();
    if (connection == nullptr)
        return false;
    const xcb_atom_t request = atom(connection, "_GTK_SHOW_WINDOW_MENU");
    if (!isSupported(connection, request))
        return false;
    const qreal scale = window.screen()->devicePixelRatio();
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = request;
    event.data.data32[1] = static_cast<uint32_t>(position.x() * scale);
    event.data.data32[2] = static_cast<uint32_t>(position.y() * scale);
    // The menu takes the pointer, which the press that asked for it still holds.
    xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    x11::sendToWindowManager(connection, event);
    return true;
}

} // namespace platform
