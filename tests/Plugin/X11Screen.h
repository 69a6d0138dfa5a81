#pragma once

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

/// The X server as a host and a person use it.
class X11Screen {
public:
    X11Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }

    ~X11Screen() { xcb_disconnect(m_connection); }

    X11Screen(const X11Screen&) = delete;
    X11Screen& operator=(const X11Screen&) = delete;

    /// Not managed by a window manager, so that it lies where it is put.
    std::uint32_t makeWindow(std::int16_t y) {
        const std::uint32_t window = xcb_generate_id(m_connection);
        const std::uint32_t values[] = {1};
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_screen->root, 0, y, width, 300, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, m_screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                          values);
        xcb_map_window(m_connection, window);
        flush();
        return window;
    }

    void destroyWindow(std::uint32_t window) {
        xcb_destroy_window(m_connection, window);
        flush();
    }

    /// Its width and height in pixels.
    std::pair<int, int> size(std::uint32_t window) {
        auto* const reply =
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr);
        const std::pair<int, int> size{reply->width, reply->height};
        free(reply);
        return size;
    }

    /// The picture of a window and of what lies in it, from its top.
    std::vector<std::uint8_t> picture(std::uint32_t window, std::uint16_t height) {
        const auto cookie =
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, width, height, ~0U);
        auto* const reply = xcb_get_image_reply(m_connection, cookie, nullptr);
        const std::uint8_t* const data = xcb_get_image_data(reply);
        std::vector<std::uint8_t> bytes(data, data + xcb_get_image_data_length(reply));
        free(reply);
        return bytes;
    }

    /// The window that gets the keys.
    std::uint32_t focus() {
        auto* const reply =
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr);
        const std::uint32_t window = reply->focus;
        free(reply);
        return window;
    }

    void setFocus(std::uint32_t window) {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        flush();
    }

    void pressKey(std::uint8_t code) {
        send(XCB_KEY_PRESS, code);
        send(XCB_KEY_RELEASE, code);
    }

    /// A key as a host passes it on whose own window keeps the keyboard.
    void passOn(std::uint32_t window, std::uint8_t code, bool isPress) {
        xcb_key_press_event_t event{};
        event.response_type = isPress ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
        event.detail = code;
        event.root = m_screen->root;
        event.event = window;
        event.same_screen = 1;
        event.time = ++m_time;
        sendTo(window, &event);
    }

    /// Says to an embedded window that the keys are its own now (XEmbed, version 0).
    void activate(std::uint32_t window) {
        constexpr std::uint32_t windowActivate = 1;
        constexpr std::uint32_t focusIn = 4;
        const auto cookie = xcb_intern_atom(m_connection, 0, 7, "_XEMBED");
        auto* const reply = xcb_intern_atom_reply(m_connection, cookie, nullptr);
        for (const std::uint32_t message : {windowActivate, focusIn}) {
            xcb_client_message_event_t event{};
            event.response_type = XCB_CLIENT_MESSAGE;
            event.format = 32;
            event.window = window;
            event.type = reply->atom;
            event.data.data32[1] = message;
            sendTo(window, &event);
        }
        free(reply);
    }

    void movePointer(std::int16_t x, std::int16_t y) { send(XCB_MOTION_NOTIFY, 0, x, y); }

    void press() { send(XCB_BUTTON_PRESS, 1); }

    void release() { send(XCB_BUTTON_RELEASE, 1); }

private:
    static constexpr std::uint16_t width = 700;

    void send(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0) {
        xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_screen->root, x, y, 0);
        flush();
    }

    void sendTo(std::uint32_t window, const void* event) {
        xcb_send_event(m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT, static_cast<const char*>(event));
        flush();
    }

    /// Returns when the server has done it.
    void flush() {
        free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen = nullptr;
    std::uint32_t m_time = 1;
};
