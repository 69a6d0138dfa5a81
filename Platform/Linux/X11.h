#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace platform::x11 {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// The application's connection to the X server; null on another window system.
xcb_connection_t* connection();

/// Waits for the server.
xcb_atom_t atom(xcb_connection_t* connection, std::string_view name);

xcb_window_t rootWindow(xcb_connection_t* connection);

/// Sends the window manager a request about `window`, as EWMH has it.
void sendToWindowManager(xcb_connection_t* connection, const xcb_client_message_event_t& message);

} // namespace platform::x11
