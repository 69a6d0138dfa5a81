#include "Platform/Core/WindowSystem.h"

#include <QGuiApplication>
#include <QPoint>
#include <QScreen>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace platform {

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr),
                                               &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t rootWindow(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// True if the window manager lists `feature` among what it supports.
bool isSupported(xcb_connection_t* connection, xcb_atom_t feature) {
    const auto cookie = xcb_get_property(connection, 0, rootWindow(connection),
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
    auto* const connection = x11Connection();
    if (connection == nullptr)
        return QGuiApplication::platformName() == QLatin1StringView("wayland");
    // EWMH: the compositor of screen 0 owns this selection.
    const auto cookie = xcb_get_selection_owner(connection, atom(connection, "_NET_WM_CM_S0"));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool showSystemMenu(QWindow& window, const QPoint& position) {
    auto* const connection = x11Connection();
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
    xcb_send_event(connection, 0, rootWindow(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
    return true;
}

} // namespace platform
