#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// The settings that a desktop tells its programs, of which there is one here: how many dots an inch has.
class DesktopSettings {
public:
    DesktopSettings() : m_connection(xcb_connect(nullptr, nullptr)), m_window(xcb_generate_id(m_connection)) {
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        xcb_create_window(m_connection, 0, m_window, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                          nullptr);
        setDpi(96);
        xcb_set_selection_owner(m_connection, m_window, atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }

    ~DesktopSettings() { xcb_disconnect(m_connection); }

    DesktopSettings(const DesktopSettings&) = delete;
    DesktopSettings& operator=(const DesktopSettings&) = delete;

    void setDpi(std::uint32_t dpi) {
        ++m_serial;
        std::string bytes(4, '\0'); // little-endian
        const auto add = [&bytes](const auto& number) {
            bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
        };
        constexpr std::string_view name = "Xft/DPI";
        add(m_serial);
        add(std::uint32_t{1}); // one setting
        add(std::uint16_t{0}); // an integer
        add(static_cast<std::uint16_t>(name.size()));
        bytes += std::string(name) + '\0';
        add(m_serial);
        add(dpi * 1024);
        const auto property = atom("_XSETTINGS_SETTINGS");
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, property, property, 8,
                            static_cast<std::uint32_t>(bytes.size()), bytes.data());
        xcb_flush(m_connection);
    }

private:
    xcb_atom_t atom(std::string_view name) {
        const auto cookie =
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
        auto* const reply = xcb_intern_atom_reply(m_connection, cookie, nullptr);
        const xcb_atom_t atom = reply->atom;
        free(reply);
        return atom;
    }

    xcb_connection_t* m_connection;
    const xcb_window_t m_window;
    std::uint32_t m_serial = 0;
};
